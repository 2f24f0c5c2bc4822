#pragma once

#include <stdexcept>
#include <string>

namespace tern7 {

/// Base of every exception that this library raises for bad input or a wrong call.
class EKTernError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace tern7
