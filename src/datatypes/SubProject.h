#pragma once
// The base of everything that belongs to a project: reaches the project's lock through a weak reference.
#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/ThreadSafe.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

namespace ZelmarMediaLib {

class ZML_EXPORT SubProject : public virtual ZelmarObject, public virtual ThreadSafe {
public:
    explicit SubProject(weak_ptr<ThreadSafe const> project);

    // Raises boost::bad_weak_ptr once the project is gone.
    ReadWriteMutex& mutex() const override;
    // So that a child can be built on the same project.
    weak_ptr<ThreadSafe const> projectMutex() const;

private:
    weak_ptr<ThreadSafe const> project_;
};

}  // namespace ZelmarMediaLib
