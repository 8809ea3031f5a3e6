#!/usr/bin/env bash
# Makes the small media files that the clip bin tests and benchmarks read, under tests/media.
# Needs the ffmpeg command-line tool (on Debian: apt-get install ffmpeg); the tests themselves
# do not, since the files are kept in the repository. Every picture and sound is synthetic, so
# the files are small and the same on every run of the same ffmpeg.
set -euo pipefail
cd "$(dirname "$0")/.."

command -v ffmpeg >/dev/null || { echo "make-test-media.sh: ffmpeg not found (apt-get install ffmpeg)" >&2; exit 1; }

out=tests/media
rm -rf "$out"
mkdir -p "$out/recording"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# Bit-exact output across runs: no encoder banner in the metadata, one thread.
ff=(ffmpeg -hide_banner -loglevel error -nostdin -y -threads 1)
meta=(-map_metadata -1 -fflags +bitexact -flags:v +bitexact -flags:a +bitexact)
h264=(-c:v libx264 -preset ultrafast -crf 40 -pix_fmt yuv420p -x264-params threads=1)

# 64x48 at 10 frames per second and stereo AAC at 44.1 kHz, both one second long.
"${ff[@]}" -f lavfi -i testsrc=size=64x48:rate=10:duration=1 \
  -f lavfi -i sine=frequency=440:sample_rate=44100:duration=1 \
  "${h264[@]}" -c:a aac -b:a 32k -ac 2 "${meta[@]}" "$out/video-audio.mp4"

# 15 frames of 64x48 pixels shown twice as wide (2:1 pixels). Matroska gives the stream no
# duration and no frame count of its own, so both come from the container.
"${ff[@]}" -f lavfi -i testsrc=size=64x48:rate=15:duration=1 -vf setsar=2/1 \
  "${h264[@]}" "${meta[@]}" "$out/video-only.mkv"

# A still picture, 40x30.
"${ff[@]}" -f lavfi -i testsrc=size=40x30:rate=1 -frames:v 1 "${meta[@]}" "$out/still.png"

# Mono 24-bit PCM at 22.05 kHz, 0.2 seconds.
"${ff[@]}" -f lavfi -i sine=frequency=330:sample_rate=22050:duration=0.2 \
  -c:a pcm_s24le "${meta[@]}" "$out/mono24.wav"

# A movie of a single frame, 32x24 at 25 frames per second, in Matroska so that its frame
# count has to be worked out from the duration.
"${ff[@]}" -f lavfi -i testsrc=size=32x24:rate=25 -frames:v 1 \
  "${h264[@]}" "${meta[@]}" "$out/one-frame.mkv"

# Streams in this order: video, subtitles, mono audio, two timecode (data) streams and a cover
# picture. Only the video and the audio are tracks.
printf '1\n00:00:00,000 --> 00:00:00,500\nhello\n\n' >"$scratch/subtitles.srt"
"${ff[@]}" -f lavfi -i testsrc=size=48x32:rate=10:duration=1 -i "$scratch/subtitles.srt" \
  -f lavfi -i sine=frequency=440:sample_rate=16000:duration=1 -i "$out/still.png" \
  -map 0:v -map 1:s -map 2:a -map 3:v \
  "${h264[@]}" -c:v:1 png -disposition:v:1 attached_pic -c:s mov_text -c:a aac -b:a 24k -ac 1 \
  -timecode 01:00:00:00 -write_tmcd 1 "${meta[@]}" "$out/extra-streams.mp4"

# A screen recording folder: the movie and three of the four side files (no cursoraction.dat).
# The side files' contents are never read by the statistics, only their presence.
"${ff[@]}" -f lavfi -i testsrc=size=64x48:rate=10:duration=1 \
  -f lavfi -i sine=frequency=550:sample_rate=44100:duration=1 \
  "${h264[@]}" -c:a aac -b:a 32k -ac 1 "${meta[@]}" "$out/recording/capture.mov"
for side in dirtyrect frontmost cursorlocation; do
  printf '%s\n' "$side" >"$out/recording/$side.dat"
done

du -sh "$out"
