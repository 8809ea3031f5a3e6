#pragma once
// Brings the Boost smart pointers, rational, any and function into the library's namespace.
#include <boost/any.hpp>
#include <boost/enable_shared_from_this.hpp>
#include <boost/function.hpp>
#include <boost/make_shared.hpp>
#include <boost/rational.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

namespace ZelmarMediaLib {

using boost::any;
using boost::any_cast;
using boost::bad_weak_ptr;
using boost::const_pointer_cast;
using boost::dynamic_pointer_cast;
using boost::enable_shared_from_this;
using boost::function;
using boost::make_shared;
using boost::rational;
using boost::shared_ptr;
using boost::static_pointer_cast;
using boost::weak_ptr;

}  // namespace ZelmarMediaLib
