// The texts that the automatic symbol is made from: pin names and the parameter text.
#pragma once

#include <string>

#include "cnx/CnxDescription.h"

namespace plovix {

// The port's name followed by "[upper..low]" for each of its two ranges whose width is not "0".
std::string pinNameOf(const CnxUsedPort& port);

// "name=value" per parameter (just "name=" when the value is "NODEFVAL"), joined by line ends.
std::string parameterTextOf(const CnxDescription& description);

}  // namespace plovix
