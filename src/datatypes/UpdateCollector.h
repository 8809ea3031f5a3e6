#pragma once
// Gathers the medias, tracks and mixers that change during an edit, so that each notifies once.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

namespace ZelmarMediaLib {

class Observable;

// A process-wide singleton whose collection belongs to the calling thread, without a lock:
// edits under the write lock collect on the writer's thread, and a reader thread that edits
// clones of its own neither joins nor disturbs that collection.
class ZML_EXPORT UpdateCollector : public ZelmarObject {
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
    UpdateCollector() = default;
};

}  // namespace ZelmarMediaLib
