#include <ZelmarMediaLib/datatypes/SubProject.h>

namespace ZelmarMediaLib {

SubProject::SubProject(weak_ptr<ThreadSafe const> project) : project_(project) {}

ReadWriteMutex& SubProject::mutex() const {
    return shared_ptr<ThreadSafe const>(project_)->mutex();
}

weak_ptr<ThreadSafe const> SubProject::projectMutex() const {
    return project_;
}

}  // namespace ZelmarMediaLib
