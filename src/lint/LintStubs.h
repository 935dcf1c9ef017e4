// Stand-ins for the sub-modules of a variation that no library provides: empty designs with the same ports.
#pragma once

#include <string>
#include <vector>

namespace plovix {

// A sub-module stand-in: the design unit's name and its text.
struct LintStub {
  std::string name;
  std::string text;
};

// The names of the sub-modules a variation instantiates, from its header's "MODULE:" lines, each once.
std::vector<std::string> variationModules(const std::string& designText);

// VHDL: an entity with an empty architecture for each component declaration in `declarations` (a design
// file or a .cmp file) whose name is in `names` (compared without regard to case), made under the context
// clause (LIBRARY and USE lines) of `designText`, so that its types are the design's.
std::vector<LintStub> vhdlStubs(const std::string& designText, const std::string& declarations,
                                const std::vector<std::string>& names);

// Verilog: a module with an empty body for each instance of a module in `names`, its ports taken from the
// instance's named connections and their widths from the declarations of the connected nets, its
// parameters from the defparam lines. A port connected to a net that nothing in the design drives is taken
// for an output, any other for an input.
std::vector<LintStub> verilogStubs(const std::string& designText, const std::vector<std::string>& names);

}  // namespace plovix
