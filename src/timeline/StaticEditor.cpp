#include <ZelmarMediaLib/timeline/StaticEditor.h>

#include <limits>

namespace ZelmarMediaLib {

StaticEditor::StaticEditor(MediaImpl* media, long long* trimStartSum) : MediaEditor(media), trimStartSum_(trimStartSum) {}

void StaticEditor::move(long long offset, Range<long long>& trackRange, Range<double>&) {
    trackRange.start += offset;
}

void StaticEditor::trimStart(long long offset, Range<long long>& trackRange, Range<double>&) {
    trackRange.start += offset;
    trackRange.duration -= offset;
    if (trimStartSum_)
        *trimStartSum_ += offset;
}

bool StaticEditor::validTrimStart(long long, Range<long long>&, Range<double>&) {
    return true;
}

void StaticEditor::trimEnd(long long offset, Range<long long>& trackRange, Range<double>&) {
    trackRange.duration -= offset;
}

bool StaticEditor::validTrimEnd(long long, Range<long long>&, Range<double>&) {
    return true;
}

long long StaticEditor::trimEndLimit(Range<long long> const&, Range<double> const&, double const&,
                                     double const&) const {
    return std::numeric_limits<long long>::min();
}

long long StaticEditor::trimStartLimit(Range<long long> const&, Range<double> const&, double const&,
                                       double const&) const {
    return std::numeric_limits<long long>::min();
}

}  // namespace ZelmarMediaLib
