// The checks that find, from a description and its netlist alone, the constructs whose standard VHDL or
// Verilog text is not valid HDL of the description's meaning, and the warnings that name them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "hdl/HdlConstruct.h"
#include "hdl/HdlTextMode.h"
#include "hdl/Netlist.h"

namespace plovix {

// Every construct of `description` (whose netlist, built for `signatureName`, is `netlist`) that the text in
// `language` holds, in the order of the constructs, each place once. THDL has none.
std::vector<HdlFinding> findHdlConstructs(const CnxDescription& description, const Netlist& netlist,
                                          std::string_view signatureName, OutputLanguage language);

// The warning about `finding` for the file `fileName`; empty when `mode` writes it validly, so that a run in
// the valid mode warns only about what it could not make valid.
std::string hdlFindingWarning(const HdlFinding& finding, std::string_view fileName, HdlTextMode mode);

// The connection feeds a sub-module port from a slice of a variation port other than the whole port (the
// standard text connects the whole port; the valid text the slice, or for a single-bit port the bit).
bool readsSliceOfVariationPort(const CnxDescription& description, const NetlistConnection& connection);

// A VHDL reserved word (case ignored), or a name that is no VHDL identifier.
bool isVhdlReservedWord(std::string_view name);
// A Verilog keyword as written or lower-cased (the writer lower-cases most names), or no Verilog identifier.
bool isVerilogKeyword(std::string_view name);

}  // namespace plovix
