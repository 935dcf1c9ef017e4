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

// The four values of a reference: width1, low1, width2, low2.
using Bounds = std::array<std::string, 4>;

// One end of a connection as filed under the other end's key: the peer's name and bounds, and the bounds it
// has on the own side.
CnxConnectionEnd connectionEnd(const std::string& peerInstance, const std::string& peerPort,
                               const Bounds& peerBounds, const Bounds& ownBounds) {
  CnxConnectionEnd end;
  end.peerInstance = peerInstance;
  end.peerPort = peerPort;
  end.peerWidth1 = peerBounds[0];
  end.peerLow1 = peerBounds[1];
  end.peerWidth2 = peerBounds[2];
  end.peerLow2 = peerBounds[3];
  end.ownWidth1 = ownBounds[0];
  end.ownLow1 = ownBounds[1];
  end.ownWidth2 = ownBounds[2];
  end.ownLow2 = ownBounds[3];
  return end;
}

bool readBounds(CnxOperands& in, Bounds& bounds) {
  for (std::string& value : bounds) {
    if (!in.value(value)) return false;
  }
  return true;
}

bool isTwoDimensional(const std::string& width1, const std::string& width2) {
  return width1 != "0" && width2 != "0";
}

}  // namespace

CnxReference splitCnxReference(std::string_view text, const std::string& mainModuleName) {
  CnxReference reference;
  reference.inverted = startsWith(text, "!");
  text = withoutInversion(text);
  const size_t at = text.find('@');
  if (at == std::string_view::npos) {
    reference.port = text;
  } else {
    reference.instance = at == 0 ? mainModuleName : std::string(text.substr(0, at));
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

bool readUsedPortStatement(CnxOperands& in) {
  CnxUsedPort port;
  if (!in.portName(port.name)) return false;
  const bool ofMainModule = startsWith(port.name, "@");
  port.name = splitCnxReference(port.name, {}).port;
  if (!in.value(port.width1) || !in.value(port.low1) || !in.value(port.width2) || !in.value(port.low2)) {
    return false;
  }
  if (!in.portType(port.direction) || !in.value(port.defaultValue)) return false;
  in.word(port.tag);
  if (!in.endOfLine()) return false;
  CnxDescription& d = in.description();
  if (isTwoDimensional(port.width1, port.width2)) d.uses2D = true;
  if (ofMainModule) {
    d.mainModulePorts.push_back(std::move(port));
  } else if (port.direction == "INPUT") {
    d.inputPorts.push_back(std::move(port));
  } else {
    d.outputPorts.push_back(std::move(port));
  }
  return true;
}

bool readConnectStatement(CnxOperands& in, CnxEndFiler& filer) {
  CnxDescription& d = in.description();
  std::string text;
  if (!in.portName(text)) return false;
  const CnxReference driven = splitCnxReference(text, d.mainModuleName);
  Bounds drivenBounds;
  if (!readBounds(in, drivenBounds)) return false;

  if (!in.portName(text)) return false;
  const bool constant = isCnxConstant(text);
  CnxReference driver;
  if (constant) {
    driver.port = withoutInversion(text);
    if (startsWith(text, "!")) driver.port = invertedCnxConstant(driver.port);
  } else {
    driver = splitCnxReference(text, d.mainModuleName);
  }
  Bounds driverBounds;
  if (!readBounds(in, driverBounds)) return false;
  if (constant) driverBounds = {"0", "0", "0", "0"};
  if (!in.endOfLine()) return false;

  if (isTwoDimensional(drivenBounds[0], drivenBounds[2]) ||
      isTwoDimensional(driverBounds[0], driverBounds[2])) {
    d.uses2D = true;
  }
  CnxConnectionEnd toDriver = connectionEnd(driver.instance, driver.port, driverBounds, drivenBounds);
  toDriver.peerIsSource = true;
  toDriver.peerInverted = driver.inverted;
  toDriver.peerIsConstant = constant;
  CnxConnectionEnd toDriven = connectionEnd(driven.instance, driven.port, drivenBounds, driverBounds);

  filer.file(driven.instance, driven.port, std::move(toDriver));
  filer.file(driver.instance, driver.port, std::move(toDriven));
  return true;
}

}  // namespace plovix
