// The THDL writer: the variation's design text, its include file (function prototype) and its template. THDL
// names sub-module ports directly, so it writes from the description alone, without the netlist.
#pragma once

#include <string>
#include <string_view>

#include "hdl/HdlFileWriter.h"

namespace plovix {

class ThdlFileWriter : public HdlFileWriter {
 public:
  ThdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                 const CnxDescription& description);

  // Header, legal notice, includes, parameters, subdesign, variable and logic sections.
  std::string buildDesignText() const override;
  // The include file: the variation's function prototype.
  std::string buildCompanionText() const override;
  // An in-line instance of the variation.
  std::string buildInstanceText() const override;

  // The sections of the design text.
  std::string includeStatements() const;
  std::string parameterSection() const;
  std::string subdesignSection() const;
  std::string variableSection() const;
  std::string logicSection() const;

 private:
  void appendLogicSection(std::string& text) const;
};

// "[upper..low]" of a range, or empty when its width is "0".
std::string thdlGroupRange(const Range& range);
// A NUMERIC value as it stands, any other in double quotes.
std::string thdlParameterValue(ValueType type, Name value);
// instance + "_component." + port, or the port alone for an empty instance.
std::string thdlReference(Name instance, Name port);

}  // namespace plovix
