// The keywords of the description's enumerations.
#include "cnx/CnxDescription.h"

namespace plovix {

std::string_view directionKeyword(PortDirection direction) {
  switch (direction) {
    case PortDirection::kInput:
      return "INPUT";
    case PortDirection::kOutput:
      return "OUTPUT";
    case PortDirection::kBidir:
      return "BIDIR";
  }
  return {};
}

}  // namespace plovix
