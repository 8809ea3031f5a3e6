#pragma once
// Test helper: an action must fail with an exception of kind E carrying exactly this text.
#include <gtest/gtest.h>

#include <string>

namespace ZelmarMediaLib {
namespace test {

template <class E, class Action>
void expectText(Action const& action, std::string const& text) {
    try {
        action();
        ADD_FAILURE() << "no exception; expected: " << text;
    } catch (E const& error) {
        EXPECT_EQ(text, error.what());
    }
}

}  // namespace test
}  // namespace ZelmarMediaLib
