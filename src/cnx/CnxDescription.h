// The CNX description of a variation: what a plug-in's CNX file says, as plain records. CnxReader fills it;
// the netlist builder, the writers and the symbol builder only read it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cnx/Bounds.h"
#include "cnx/CnxConnectionMap.h"
#include "cnx/SymbolElements.h"
#include "cnx/TextPool.h"

namespace plovix {

// What the description asks to generate (the GENERATION: line).
enum class GenerationMode : uint8_t {
  kStandard,    // "STANDARD": design files and symbol
  kSymbolOnly,  // "SYMBOL_ONLY": the symbol alone
  kInvalid,     // any other word
};

// The direction of a variation port (the port type of a USED_PORT: line).
enum class PortDirection : uint8_t {
  kInput,   // "INPUT"
  kOutput,  // "OUTPUT"
  kBidir,   // "BIDIR"
};

// The keyword of a direction as the description writes it.
std::string_view directionKeyword(PortDirection direction);

// The type of a parameter, constant or private value.
enum class ValueType : uint8_t {
  kNumeric,  // "NUMERIC": written as it stands
  kString,   // "STRING": written in quotes
};

// The value an unconnected input takes.
enum class DefaultKind : uint8_t {
  kNone,    // "NODEFVAL": no default
  kGround,  // "GND"
  kPower,   // "VCC"
  kOther,   // any other text, written as it stands
};

// The text that marks the absence of a default value, also among parameter values.
inline constexpr std::string_view kNoDefaultValue = "NODEFVAL";

struct PortDefault {
  DefaultKind kind = DefaultKind::kNone;
  Name text;  // as written ("GND", "VCC", "5", ...); "NODEFVAL" for kNone
};

inline constexpr std::string_view kNoDefaultLibrary = "NO_DEFAULT_LIB";

struct CnxLibrary {
  Name name;  // kNoDefaultLibrary drops the default VHDL libraries
  Name use;   // the item named in the use clause; may be empty only beside kNoDefaultLibrary
};

struct CnxModule {
  Name moduleName;         // the library function instantiated
  Name instanceName;       // givenInstanceName when not empty, else mainModuleName when the line was read
  Name givenInstanceName;  // as written, possibly empty
  int32_t line = 0;        // the line's number in the description
};

// A PARAMETER: line; CONSTANT: lines have the same fields. An empty target belongs to every instance.
struct CnxParameter {
  Name name;
  ValueType type = ValueType::kNumeric;
  Name value;
  Name target;
  int32_t line = 0;  // the line's number in the description
};
using CnxConstant = CnxParameter;

// A PRIVATE: line: plug-in state, only carried back in the retrieval info.
struct CnxPrivate {
  Name name;
  ValueType type = ValueType::kNumeric;
  Name value;
};

// A USED_PORT: line.
struct CnxUsedPort {
  Name name;  // without a leading "!" and without everything up to the first "@"
  Shape shape;
  PortDirection direction = PortDirection::kInput;
  PortDefault defaultValue;
  Name tag;          // an optional further word; the automatic symbol shows it as the pin's alternative text
  int32_t line = 0;  // the line's number in the description
};

inline constexpr std::string_view kVersionUnknown = "CNX_VERSION_UNKNOWN";

struct CnxDescription {
  // The CNX file the description was read from.
  std::string cnxPath;
  GenerationMode generationMode = GenerationMode::kStandard;
  // "WM1.0", "WM2.0" or kVersionUnknown.
  std::string version = std::string(kVersionUnknown);
  // Some port or connection end has two present ranges.
  bool uses2D = false;
  // No SYMBOL: BOX line was read: the symbol is generated from the ports instead of drawn.
  bool defaultSymbolBox = true;
  // The module of the first MODULE: line; "@" references name its instance.
  Name mainModuleName;

  std::vector<CnxLibrary> libraries;
  std::vector<CnxModule> modules;
  std::vector<CnxParameter> parameters;
  std::vector<CnxConstant> constants;
  std::vector<CnxPrivate> privates;
  std::vector<CnxUsedPort> inputPorts;       // USED_PORT: INPUT lines
  std::vector<CnxUsedPort> outputPorts;      // USED_PORT: OUTPUT and BIDIR lines
  std::vector<CnxUsedPort> mainModulePorts;  // USED_PORT: lines whose port starts with "@", any direction
  CnxConnectionMap connectionMap;            // CONNECT: lines
  std::vector<Name> moduleNames;             // the distinct module names of `modules`, in order
  std::vector<SymbolElement> symbolElements;

  // The lines the retrieval info carries back (LIBRARY:, PARAMETER:, CONSTANT:, PRIVATE:, USED_PORT: and
  // CONNECT: lines, each trimmed and ended with "\n"), in file order, whether or not the reader accepted
  // them.
  std::string retrievedStatements;

  // Every Name of the description points into this pool, which the description owns: a description is
  // moved, not copied, and whatever keeps its Names (a netlist) lives no longer than it.
  std::unique_ptr<TextPool> names = std::make_unique<TextPool>();
};

}  // namespace plovix
