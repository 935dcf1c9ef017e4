// USED_PORT: and CONNECT: lines: their references, constant drivers, and the two ends a connection files.
#include "cnx/CnxReferences.h"

#include <array>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "cnx/CnxStatements.h"

namespace plovix {

namespace {

std::string_view withoutInversion(std::string_view text) {
  if (startsWith(text, "!")) text.remove_prefix(1);
  return text;
}

// The four values of a reference, as written: width1, low1, width2, low2.
bool readShape(CnxOperands& in, CnxBuild& out, Shape& shape) {
  std::array<std::string_view, 4> texts;
  for (std::string_view& text : texts) {
    if (!in.value(text)) return false;
  }
  TextPool& pool = *out.description.names;
  shape = Shape{{Bound::fromText(texts[0], pool), Bound::fromText(texts[1], pool)},
                {Bound::fromText(texts[2], pool), Bound::fromText(texts[3], pool)}};
  return true;
}

PortDefault portDefaultOf(Name text) {
  if (text == kNoDefaultValue) return {DefaultKind::kNone, text};
  if (text == "GND") return {DefaultKind::kGround, text};
  if (text == "VCC") return {DefaultKind::kPower, text};
  return {DefaultKind::kOther, text};
}

// The instance a reference names: the main module's for "@port" (empty before the first MODULE: line).
Name instanceOf(const CnxReference& reference, CnxBuild& out) {
  return reference.startsWithAt ? out.description.mainModuleName : out.intern(reference.instance);
}

}  // namespace

CnxReference splitCnxReference(std::string_view text) {
  CnxReference reference;
  reference.inverted = startsWith(text, "!");
  text = withoutInversion(text);
  const size_t at = text.find('@');
  if (at == std::string_view::npos) {
    reference.port = text;
  } else {
    reference.startsWithAt = at == 0;
    reference.instance = text.substr(0, at);
    reference.port = text.substr(at + 1);
  }
  return reference;
}

bool isCnxConstant(std::string_view text) {
  text = withoutInversion(text);
  return text == "VCC" || text == "GND" || isIntegerText(text);
}

std::string invertedCnxConstant(std::string_view constant) {
  if (constant == "VCC") return "GND";
  if (constant == "GND") return "VCC";
  return formatText("%d", ~cnxNumberValue(constant));
}

bool readUsedPortStatement(CnxOperands& in, CnxBuild& out) {
  std::string_view reference, defaultValue;
  CnxUsedPort port;
  if (!in.portName(reference)) return false;
  const bool ofMainModule = startsWith(reference, "@");
  if (!readShape(in, out, port.shape)) return false;
  if (!in.portType(port.direction) || !in.value(defaultValue)) return false;
  const std::string_view tag = in.word();
  if (!in.endOfLine()) return false;
  port.name = out.intern(splitCnxReference(reference).port);
  port.defaultValue = portDefaultOf(out.value(defaultValue));
  port.tag = out.value(tag);
  port.line = in.lineNumber();
  CnxDescription& d = out.description;
  if (port.shape.isTwoDimensional()) d.uses2D = true;
  if (ofMainModule) {
    d.mainModulePorts.push_back(port);
  } else if (port.direction == PortDirection::kInput) {
    d.inputPorts.push_back(port);
  } else {
    d.outputPorts.push_back(port);
  }
  return true;
}

bool readConnectStatement(CnxOperands& in, CnxBuild& out) {
  std::string_view text;
  if (!in.portName(text)) return false;
  const CnxReference driven = splitCnxReference(text);
  Shape drivenShape;
  if (!readShape(in, out, drivenShape)) return false;

  if (!in.portName(text)) return false;
  const bool constant = isCnxConstant(text);
  CnxReference driver;
  Name driverPort;
  if (constant) {
    driverPort =
        startsWith(text, "!") ? out.intern(invertedCnxConstant(withoutInversion(text))) : out.intern(text);
  } else {
    driver = splitCnxReference(text);
  }
  Shape driverShape;
  if (!readShape(in, out, driverShape)) return false;
  if (constant) driverShape = Shape{};
  if (!in.endOfLine()) return false;

  if (drivenShape.isTwoDimensional() || driverShape.isTwoDimensional()) out.description.uses2D = true;
  const Name drivenInstance = instanceOf(driven, out);
  const Name drivenPort = out.intern(driven.port);
  const Name driverInstance = constant ? Name() : instanceOf(driver, out);
  if (!constant) driverPort = out.intern(driver.port);

  CnxConnectionEnd toDriver{driverInstance, driverPort,      driverShape, drivenShape,
                            true,           driver.inverted, constant,    in.lineNumber()};
  CnxConnectionEnd toDriven{drivenInstance, drivenPort, drivenShape, driverShape,
                            false,          false,      false,       in.lineNumber()};
  out.connections.file(drivenInstance, drivenPort, toDriver);
  out.connections.file(driverInstance, driverPort, toDriven);
  return true;
}

}  // namespace plovix
