// The constructs of a description whose standard VHDL or Verilog text the HDL tools reject, or that means
// something else in the other language, and what can be done about each.
#pragma once

#include <cstdint>
#include <string>

#include "base/Messages.h"
#include "base/OutputKinds.h"

namespace plovix {

enum class HdlConstruct : uint8_t {
  kEmptyGenericMap,          // VHDL: a constant of another instance leaves this one an empty generic map
  kReservedWord,             // VHDL: a reserved word used as a port, constant, parameter or module name
  kPassedParameter,          // VHDL: a PARAMETER line declared on the components with its own name as type
  kUpperCaseParameter,       // Verilog: a PARAMETER name with capitals, named in lower case by the defparam
  kSlicedFeeds,              // VHDL: a sub-module port fed by several connections
  kConstantSlice,            // VHDL: a constant feeding part of a sub-module port
  kOneBitDrivesBus,          // one bit drives a bus
  kNumericDefault,           // VHDL: an input port's default is a number
  kNumberDrivesBit,          // VHDL: a number drives a single bit
  kTwoDimensionalRows,       // the rows of a two-dimensional sub-module port connected one by one
  kInvertedOutput,           // an inverted sub-module output
  kOutputRange,              // Verilog: an output declared with another range than its port
  kMainPortNarrowed,         // Verilog: an output driven by an "@" main-module port narrowed to one bit
  kVccDrivesBus,             // Verilog: VCC driving a bus written n'h1
  kPinReadTwice,             // a sub-module output read in two slices
  kVerilogKeyword,           // Verilog: a keyword (after lower-casing) or no identifier used as a name
  kLowerCasedName,           // Verilog: a sub-module output port or module name with capitals, lower-cased
  kBitOfBusToBit,            // one bit of a variation bus feeding a single-bit sub-module input
  kSliceToWholePort,         // a slice of a variation port feeding a whole sub-module input
  kBitOfOutputToBit,         // one bit (not bit 0) of a sub-module bus output feeding a single-bit output
  kGenericsOfFirstInstance,  // VHDL: another instance of the module lacks a constant the first one has
  kConstantAboveZero,        // VHDL: a constant driving a slice of a variation output above bit 0
  kInvertedSlice,            // an inverted slice of a variation port, the whole port inverted
};

// What the valid mode does about a construct.
enum class HdlRemedy : uint8_t {
  kValidText,      // the valid mode writes valid HDL of the same meaning
  kNotCoveredYet,  // the valid mode does not rewrite it yet: the valid text still holds the construct
  kOtherLanguage,  // nothing in this language can express it; another language can
  kNothing,        // no valid text can express what the description says
};

// One construct found in a description, for one output language.
struct HdlFinding {
  HdlConstruct construct;
  OutputLanguage language;
  std::string port;      // the port (or name) concerned; may be empty
  std::string instance;  // the sub-module instance concerned; empty for a variation port
  int32_t line = 0;      // the description line that makes it
  bool operator==(const HdlFinding&) const = default;
};

// The message that names the construct.
Msg hdlConstructMessage(HdlConstruct construct);
// A short name for the construct, as tests and the soak's figures list them.
const char* hdlConstructName(HdlConstruct construct);
// What the valid mode does about the construct in `language`.
HdlRemedy hdlRemedy(HdlConstruct construct, OutputLanguage language);

}  // namespace plovix
