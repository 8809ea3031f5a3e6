#include <ZelmarMediaLib/clipbin/ClipBoard.h>

#include <ZelmarMediaLib/clipbin/Clipping.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <iterator>
#include <sstream>

namespace ZelmarMediaLib {

ClipBoard::ClipBoard(weak_ptr<ThreadSafe const> project) : SubProject(project) {}

ClipBoard& ClipBoard::operator=(ClipBoard const&) {
    return *this;
}

ClipBoard::~ClipBoard() = default;

std::string ClipBoard::description() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    std::ostringstream out;
    out << "ClipBoard\n";
    for (shared_ptr<Clipping> const& clipping : clippings_)
        out << '\t' << clipping.get() << '\n';
    return out.str();
}

void ClipBoard::addClipping(shared_ptr<Clipping> clipping) {
    if (!clipping)
        throw ZelmarMediaLibException("attempting to add a null clipping");
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    clippings_.push_back(clipping);
}

void ClipBoard::removeClipping(shared_ptr<Clipping> clipping) {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    clippings_.remove(clipping);
}

int ClipBoard::size() const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    return static_cast<int>(std::distance(clippings_.begin(), clippings_.end()));
}

bool ClipBoard::contains(shared_ptr<Clipping const> clipping) const {
    ReadWriteMutex::ScopedReadLock lock(&mutex());
    for (shared_ptr<Clipping> const& held : clippings_) {
        if (held == clipping)
            return true;
    }
    return false;
}

ConstIterator<ClipBoard::ClippingList> ClipBoard::begin() const {
    return ConstIterator<ClippingList>(clippings_.begin(), mutex());
}

ConstIterator<ClipBoard::ClippingList> ClipBoard::end() const {
    return ConstIterator<ClippingList>(clippings_.end(), mutex());
}

}  // namespace ZelmarMediaLib
