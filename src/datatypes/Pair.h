#pragma once
// Two values of one kind that belong together, such as the two halves that a split gives.
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <ostream>
#include <utility>

namespace ZelmarMediaLib {

template <class T>
class Pair : public ZelmarObject {
public:
    Pair() : first(), second() {}
    Pair(T firstValue, T secondValue) : first(std::move(firstValue)), second(std::move(secondValue)) {}

    T first;
    T second;
};

// Only instantiated for element types that can themselves be written.
template <class T>
std::ostream& operator<<(std::ostream& out, Pair<T> const& pair) {
    return out << '(' << pair.first << ',' << pair.second << ')';
}

}  // namespace ZelmarMediaLib
