// The THDL include file (the variation's function prototype) and the instantiation template.
#include <string>
#include <vector>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/ThdlFileWriter.h"

namespace plovix {

namespace {

// "\tname[..][..]" items of a port list, joined with ",\n".
std::string prototypePortList(const std::vector<CnxUsedPort>& ports) {
  std::string list;
  std::string separator;
  for (const CnxUsedPort& port : ports) {
    appendFormatted(list, "%s\t%s%s%s", separator.c_str(), port.name.c_str(),
                    thdlGroupRange(port.shape.rows).c_str(), thdlGroupRange(port.shape.bits).c_str());
    separator = ",\n";
  }
  return list;
}

// "[]" per dimension whose width reads as at least 1.
std::string bracketSuffix(const CnxUsedPort& port) {
  std::string suffix;
  if (port.shape.rows.width.value() >= 1) suffix += "[]";
  if (port.shape.bits.width.value() >= 1) suffix += "[]";
  return suffix;
}

}  // namespace

std::string ThdlFileWriter::buildCompanionText() const {
  const std::string inputs = prototypePortList(description_.inputPorts) + "\n)\n\n";
  std::string parameterClause;
  if (!description_.parameters.empty()) {
    std::string separator;
    parameterClause = "WITH (\n";
    for (const CnxParameter& parameter : description_.parameters) {
      appendFormatted(parameterClause, "%s\t%s", separator.c_str(), parameter.name.c_str());
      separator = ",\n";
    }
    parameterClause += "\n)\n\n";
  }
  return fillTemplate(
      "%s\n\nFUNCTION %s \n(\n%s%sRETURNS (\n%s\n);\n",
      {legalNoticeText(), fileName_, inputs, parameterClause, prototypePortList(description_.outputPorts)});
}

std::string ThdlFileWriter::buildInstanceText() const {
  std::string results;
  std::string returns;
  std::string separator;
  for (const CnxUsedPort& port : description_.outputPorts) {
    const std::string suffix = bracketSuffix(port);
    appendFormatted(results, "%s\t%s_sig%s", separator.c_str(), port.name.c_str(), suffix.c_str());
    appendFormatted(returns, "%s\t.%s%s", separator.c_str(), port.name.c_str(), suffix.c_str());
    separator = ",\n";
  }
  std::string assignments;
  separator.clear();
  for (const CnxUsedPort& port : description_.inputPorts) {
    const std::string suffix = bracketSuffix(port);
    appendFormatted(assignments, "%s\t.%s%s = %s_sig%s", separator.c_str(), port.name.c_str(), suffix.c_str(),
                    port.name.c_str(), suffix.c_str());
    separator = ",\n";
  }
  assignments += "\n)\n";
  return fillTemplate("(\n%s\n) = %s\t(\n%sRETURNS (\n%s\n);\n", {results, fileName_, assignments, returns});
}

}  // namespace plovix
