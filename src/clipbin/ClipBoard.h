#pragma once
// The project's list of clippings, in the order they were made; the clipping commands add and take out.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/ConstIterator.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>

#include <list>
#include <string>

namespace ZelmarMediaLib {

class Clipping;

// No observers: adding and removing send no notification. Changes take only the read lock:
// they run on the command path, whose write lock already keeps every other thread out.
class ZML_EXPORT ClipBoard : public SubProject {
public:
    typedef std::list<shared_ptr<Clipping> > ClippingList;

    explicit ClipBoard(weak_ptr<ThreadSafe const> project);
    ClipBoard(ClipBoard const&) = delete;
    // Leaves the left side as it was, as every object of a project does.
    ClipBoard& operator=(ClipBoard const&);
    ~ClipBoard() override;

    // "ClipBoard", then one tab-led line with the address of each clipping, in list order.
    std::string description() const override;

    // Appends, also a clipping that is here already. A null clipping is refused.
    void addClipping(shared_ptr<Clipping> clipping);
    // Every entry of that very clipping goes; none is no failure.
    void removeClipping(shared_ptr<Clipping> clipping);
    // Counts the entries, so a clipping added twice counts twice.
    int size() const;
    // By pointer.
    bool contains(shared_ptr<Clipping const> clipping) const;

    // Hold the read lock for as long as the iterator or a copy lives.
    ConstIterator<ClippingList> begin() const;
    ConstIterator<ClippingList> end() const;

private:
    ClippingList clippings_;
};

}  // namespace ZelmarMediaLib
