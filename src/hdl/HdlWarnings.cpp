// The warning text of an HDL construct finding.
#include <string>

#include "base/Format.h"
#include "base/Report.h"
#include "hdl/HdlChecks.h"

namespace plovix {

namespace {

std::string placeText(const HdlFinding& finding) {
  if (!finding.instance.empty() && !finding.port.empty())
    return errorMessage(Msg::kHdlWherePortOfInstance, finding.port, finding.instance);
  if (!finding.instance.empty()) return errorMessage(Msg::kHdlWhereInstance, finding.instance);
  switch (finding.construct) {
    case HdlConstruct::kReservedWord:
    case HdlConstruct::kPassedParameter:
    case HdlConstruct::kUpperCaseParameter:
    case HdlConstruct::kVerilogKeyword:
      return errorMessage(Msg::kHdlWhereName, finding.port);
    case HdlConstruct::kLowerCasedName:
      if (finding.instance.empty()) return errorMessage(Msg::kHdlWhereName, finding.port);
      break;
    default:
      break;
  }
  return errorMessage(Msg::kHdlWherePort, finding.port);
}

// The language that can express what the construct says, where the finding's cannot.
std::string otherLanguage(const HdlFinding& finding) {
  OutputLanguage other =
      finding.language == OutputLanguage::kVhdl ? OutputLanguage::kVerilog : OutputLanguage::kVhdl;
  if (finding.construct == HdlConstruct::kTwoDimensionalRows) other = OutputLanguage::kThdl;
  return std::string(outputKind(other).displayName);
}

}  // namespace

std::string hdlFindingWarning(const HdlFinding& finding, std::string_view fileName, HdlTextMode mode) {
  const HdlRemedy remedy = hdlRemedy(finding.construct, finding.language);
  if (remedy == HdlRemedy::kValidText && mode == HdlTextMode::kValid) return {};
  const std::string file(fileName);
  const std::string what = errorMessage(hdlConstructMessage(finding.construct));
  const std::string where = placeText(finding);
  const std::string line = formatInt(finding.line);
  switch (remedy) {
    case HdlRemedy::kValidText:
      return errorMessage(Msg::kHdlWarningValid, file, what, where, line);
    case HdlRemedy::kNotCoveredYet:
      return errorMessage(Msg::kHdlWarningNotYet, file, what, where, line);
    case HdlRemedy::kOtherLanguage:
      return errorMessage(Msg::kHdlWarningOtherLanguage, file, what, where, line, otherLanguage(finding));
    case HdlRemedy::kNothing:
      return errorMessage(Msg::kHdlWarningNothing, file, what, where, line,
                          errorMessage(Msg::kHdlReasonWhichBits));
  }
  return {};
}

}  // namespace plovix
