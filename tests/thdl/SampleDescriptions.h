// Descriptions built record by record for the writer and generation tests, as the CNX reader would fill them.
#pragma once

#include <string>
#include <utility>

#include "cnx/CnxDescription.h"

namespace plovix::testing {

// One side of a CONNECT line: instance, port and the bound quadruple.
struct Reference {
  std::string instance;
  std::string port;
  std::string width1 = "0", low1 = "0", width2 = "0", low2 = "0";
};

inline CnxUsedPort usedPort(std::string name, std::string direction, std::string defaultValue = "NODEFVAL",
                            std::string width1 = "0", std::string low1 = "0", std::string width2 = "0",
                            std::string low2 = "0") {
  CnxUsedPort port;
  port.name = std::move(name);
  port.direction = std::move(direction);
  port.defaultValue = std::move(defaultValue);
  port.width1 = std::move(width1);
  port.low1 = std::move(low1);
  port.width2 = std::move(width2);
  port.low2 = std::move(low2);
  return port;
}

// Appends an end to the list of (instance, port), creating the map entries on first use.
inline void fileEnd(CnxDescription& description, const std::string& instance, const std::string& port,
                    CnxConnectionEnd end) {
  CnxPortMap* ports = description.connectionMap.find(instance);
  if (ports == nullptr) ports = &description.connectionMap.insert(instance, CnxPortMap{});
  CnxEndList* ends = ports->find(port);
  if (ends == nullptr) ends = &ports->insert(port, CnxEndList{});
  ends->push_back(std::move(end));
}

// Files both records of a CONNECT line that drives `driven` from `driver`.
inline void connect(CnxDescription& description, const Reference& driven, const Reference& driver,
                    bool inverted = false, bool constant = false) {
  CnxConnectionEnd toDriver;
  toDriver.peerInstance = driver.instance;
  toDriver.peerPort = driver.port;
  if (!constant) {
    toDriver.peerWidth1 = driver.width1;
    toDriver.peerLow1 = driver.low1;
    toDriver.peerWidth2 = driver.width2;
    toDriver.peerLow2 = driver.low2;
  }
  toDriver.ownWidth1 = driven.width1;
  toDriver.ownLow1 = driven.low1;
  toDriver.ownWidth2 = driven.width2;
  toDriver.ownLow2 = driven.low2;
  toDriver.peerIsSource = true;
  toDriver.peerInverted = inverted;
  toDriver.peerIsConstant = constant;
  fileEnd(description, driven.instance, driven.port, toDriver);

  CnxConnectionEnd toDriven;
  toDriven.peerInstance = driven.instance;
  toDriven.peerPort = driven.port;
  toDriven.peerWidth1 = driven.width1;
  toDriven.peerLow1 = driven.low1;
  toDriven.peerWidth2 = driven.width2;
  toDriven.peerLow2 = driven.low2;
  if (!constant) {
    toDriven.ownWidth1 = driver.width1;
    toDriven.ownLow1 = driver.low1;
    toDriven.ownWidth2 = driver.width2;
    toDriven.ownLow2 = driver.low2;
  }
  fileEnd(description, driver.instance, driver.port, toDriven);
}

// An eight-bit counter: one lpm_counter with parameters, constants and a mix of port kinds.
inline CnxDescription counterDescription() {
  CnxDescription d;
  d.version = "WM1.0";
  d.mainModuleName = "lpm_counter";
  d.modules = {{"lpm_counter", "lpm_counter", ""}};
  d.moduleNames = {"lpm_counter"};
  d.parameters = {{"WIDTH", "NUMERIC", "8", ""}, {"MODE", "STRING", "fast", ""}};
  d.constants = {{"LPM_DIRECTION", "STRING", "UP", ""},
                 {"LPM_SVALUE", "NUMERIC", "3", "elsewhere"},
                 {"LPM_AVALUE", "NUMERIC", "5", "lpm_counter"}};
  d.inputPorts = {usedPort("clock", "INPUT"), usedPort("cnt_en", "INPUT", "VCC"),
                  usedPort("data", "INPUT", "GND", "8", "0")};
  d.outputPorts = {usedPort("q", "OUTPUT", "NODEFVAL", "8", "0"), usedPort("cout", "OUTPUT", "GND")};
  connect(d, {"lpm_counter", "clock"}, {"", "clock"});
  connect(d, {"lpm_counter", "cnt_en"}, {"", "cnt_en"});
  connect(d, {"lpm_counter", "data", "8", "0"}, {"", "data", "8", "0"});
  connect(d, {"", "q", "8", "0"}, {"lpm_counter", "q", "8", "0"});
  connect(d, {"", "cout"}, {"lpm_counter", "cout"});
  return d;
}

}  // namespace plovix::testing
