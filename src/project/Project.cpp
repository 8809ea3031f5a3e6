#include <ZelmarMediaLib/project/Project.h>

#include <ZelmarMediaLib/project/detail/InternalProject.h>

namespace ZelmarMediaLib {

Project::~Project() = default;

shared_ptr<Project> Project::create(unsigned int numerator, unsigned int denominator) {
    return create(rational<unsigned long>(numerator, denominator));
}

shared_ptr<Project> Project::create(rational<unsigned long> editRate) {
    return InternalProject::create(editRate);
}

}  // namespace ZelmarMediaLib
