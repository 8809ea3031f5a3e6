#pragma once
// An observable model object whose notifications can be disabled, or held back by a NotifyDelay.
#include <ZelmarMediaLib/datatypes/Export.h>
#include <ZelmarMediaLib/datatypes/Observer.h>
#include <ZelmarMediaLib/datatypes/ObserverList.h>

#include <memory>

namespace ZelmarMediaLib {


class ZML_EXPORT Subject : public Observable {
public:
    Subject();
    // Observers stay with the object they watch: a copy starts with none.
    Subject(Subject const& other);
    Subject& operator=(Subject const&);
    ~Subject() override;

    void attach(Observer* observer) const override;
    // Does nothing for an observer that is not attached.
    void detach(Observer* observer) const override;
    // Dropped while disabled; held while a NotifyDelay is open; otherwise delivered now.
    void notify() const override;

    bool isAttached(Observer* observer) const;
    std::size_t numObservers() const;

    // While one lives, notifications of the subject are dropped for good, not held.
    class NotifyDisabler {
    public:
        explicit NotifyDisabler(Subject const* subject);
        NotifyDisabler(NotifyDisabler const& other);
        NotifyDisabler& operator=(NotifyDisabler const&) = delete;
        ~NotifyDisabler();

    private:
        Subject const* subject_;
    };

    NotifyDisabler disableNotifies() const;
    bool isNotifying() const;

private:
    // Held in place: most subjects never get an observer, and an empty list costs no allocation.
    mutable ObserverList observers_;
    mutable int disableCount_ = 0;
};

}  // namespace ZelmarMediaLib
