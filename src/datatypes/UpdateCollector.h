#pragma once
// Gathers the medias, tracks and mixers that change during an edit, so that each notifies once.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <memory>
#include <set>

namespace ZelmarMediaLib {

class Observable;

// A process-wide singleton without a lock: used only under the project's write lock.
class UpdateCollector : public ZelmarObject {
public:
    static UpdateCollector* instance();

    void startCollecting();
    // Notifies each collected object once, in the set's order, and empties the set.
    void stopCollecting();
    bool isCollecting() const;
    // Keeps the object alive until the collection ends.
    void addObservable(shared_ptr<Observable const> const& observable);

    // Collections do not nest: the end of an inner one stops the outer one as well.
    class Collection {
    public:
        Collection();
        Collection(Collection const&) = delete;
        Collection& operator=(Collection const&) = delete;
        // Never throws.
        ~Collection();
    };

private:
    UpdateCollector();

    struct Record {
        std::set<shared_ptr<Observable const> > observables;
        bool collecting = false;
    };
    std::unique_ptr<Record> record_;
};

}  // namespace ZelmarMediaLib
