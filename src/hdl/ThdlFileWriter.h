// The THDL writer: the variation's design text, its include file (function prototype) and its template.
#pragma once

#include <string>

#include "hdl/HdlFileWriter.h"

namespace plovix {

class ThdlFileWriter : public HdlFileWriter {
 public:
  ThdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                 CnxDescription& description);

  // Header, legal notice, includes, parameters, subdesign, variable and logic sections.
  std::string buildDesignText() override;
  // The include file: the variation's function prototype.
  std::string buildCompanionText() override;
  // An in-line instance of the variation.
  std::string buildInstanceText() override;

  // The sections of the design text, each on its own.
  std::string includeStatements() const;
  std::string parameterSection() const;
  std::string subdesignSection() const;
  std::string variableSection() const;
  std::string logicSection() const;
};

// "[upper..low]" of a width and a low index, or empty when the width is "0".
std::string thdlGroupRange(const std::string& width, const std::string& low);
// A NUMERIC value as it stands, any other in double quotes.
std::string thdlParameterValue(const std::string& type, const std::string& value);
// instance + "_component." + port, or the port alone for an empty instance.
std::string thdlReference(const std::string& instance, const std::string& port);

}  // namespace plovix
