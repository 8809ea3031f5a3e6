#pragma once
// Takes a media off its track together with every media linked to it; undo puts them all back.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/timeline/Media.h>

#include <ostream>

namespace ZelmarMediaLib {

class Track;

// Each media comes off its own track and keeps its track range and its links while it is
// off, so undo re-adds the medias, in the order of removal, at the times they still carry,
// and the links stand as before. Instantiated for Media.
//   track 1:  [A ]   [C ]     remove A     track 1:        [C ]
//   track 2:  [A']            ------->     track 2:                undo gives back A' then A
template <class T>
class RemoveMediaCmd : public Command {
public:
    typedef CommandHandler::RemovedMediaList RemovedMediaList;

    static shared_ptr<RemoveMediaCmd> create(shared_ptr<Track const> track, shared_ptr<T const> mediaToRemove) {
        return shared_ptr<RemoveMediaCmd>(new RemoveMediaCmd(track, mediaToRemove));
    }

    RemoveMediaCmd* clone() const override { return new RemoveMediaCmd(*this); }

    bool execute(CommandHandler* handler) override {
        removed_ = handler->removeMedia(track_, mediaToRemove_);
        return true;
    }

    bool unexecute(CommandHandler* handler) override {
        for (typename RemovedMediaList::value_type const& entry : *removed_)
            handler->addMedia(entry.second, entry.first, entry.first->trackRange().start);
        return true;
    }

    shared_ptr<Track const> const& track() const { return track_; }
    shared_ptr<T const> const& mediaToRemove() const { return mediaToRemove_; }
    // What the last run took off, and from where; null until the command has run.
    shared_ptr<RemovedMediaList> const& removed() const { return removed_; }

    void xmlName(XMLable::Options& options) const override { *options.stream << "RemoveMediaCmd"; }
    void xmlAttributes(XMLable::Options& options) const override {
        *options.stream << "track=\"" << static_cast<void const*>(track_.get()) << "\" mediaToRemove=\""
                        << static_cast<void const*>(mediaToRemove_.get()) << '"';
    }
    void xmlBody(XMLable::Options&, int) const override {}

protected:
    RemoveMediaCmd(shared_ptr<Track const> track, shared_ptr<T const> mediaToRemove)
        : track_(track), mediaToRemove_(mediaToRemove) {}
    RemoveMediaCmd(RemoveMediaCmd const& other) = default;

private:
    shared_ptr<Track const> track_;
    shared_ptr<T const> mediaToRemove_;
    shared_ptr<RemovedMediaList> removed_;
};

}  // namespace ZelmarMediaLib
