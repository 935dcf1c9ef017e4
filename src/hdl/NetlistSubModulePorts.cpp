// The merged ports of the instantiated sub-modules, with the direction each is used in.
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "base/TextHelpers.h"
#include "hdl/HdlFileWriter.h"
#include "hdl/NetlistKeys.h"

namespace plovix {

namespace {

// The names of the variation's bidirectional ports, looked up once instead of scanning the outputs per
// record.
std::unordered_set<std::string> bidirOutputNames(const CnxDescription& description) {
  std::unordered_set<std::string> names;
  for (const CnxUsedPort& port : description.outputPorts) {
    if (port.direction == "BIDIR") names.insert(port.name);
  }
  return names;
}

// A stored bound changes only for a strictly larger width or a strictly smaller low index, and is then
// stored as decimal text; otherwise its text stays as it is, so a symbolic bound survives a tie.
void growTo(std::string& width, long long value) {
  if (value > atoiText(width)) width = decimalText(value);
}

void shrinkTo(std::string& low, long long value) {
  if (value < atoiText(low)) low = decimalText(value);
}

void mergeEnd(SubModulePort& record, const CnxConnectionEnd& e) {
  const std::string other = e.peerIsSource ? "OUT" : "IN";
  if (record.directionWord == other) {
    record.directionWord = "INOUT";
  } else if (record.directionWord != "INOUT") {
    record.directionWord = e.peerIsSource ? "IN" : "OUT";
  }
  growTo(record.width1, atoiText(e.ownWidth1) + atoiText(e.ownLow1));
  shrinkTo(record.low1, atoiText(e.ownLow1));
  growTo(record.width2, atoiText(e.ownWidth2));
  shrinkTo(record.low2, atoiText(e.ownLow2));
}

SubModulePort newRecord(const std::unordered_set<std::string>& bidirOutputs, const std::string& moduleName,
                        const std::string& port, const CnxConnectionEnd& e) {
  SubModulePort record;
  record.moduleName = moduleName;
  record.portName = port;
  record.width1 = decimalText(atoiText(e.ownWidth1) + atoiText(e.ownLow1));
  record.low1 = e.ownLow1;
  record.width2 = e.ownWidth2;
  record.low2 = e.ownLow2;
  record.scalar = e.ownWidth1 == "0" && e.ownLow1 == "0" && e.ownWidth2 == "0" && e.ownLow2 == "0";
  record.directionWord = e.peerIsSource ? "IN" : "OUT";
  if (e.peerInstance.empty() && bidirOutputs.count(e.peerPort) != 0) record.directionWord = "INOUT";
  return record;
}

}  // namespace

void HdlFileWriter::buildSubModulePorts() {
  const std::unordered_set<std::string> bidirOutputs = bidirOutputNames(description_);
  std::unordered_map<std::string, size_t> recordOf;  // module name + '\0' + port name
  // Records already in the list are merged into, so that a second call adds nothing twice.
  for (size_t i = 0; i < subModulePorts.size(); ++i) {
    recordOf.try_emplace(subModulePorts[i].moduleName + '\0' + subModulePorts[i].portName, i);
  }
  for (const CnxModule& module : description_.modules) {
    const CnxPortMap* ports = description_.connectionMap.find(module.instanceName);
    if (ports == nullptr) continue;
    ports->forEach([&](const std::string& port, const CnxEndList& ends) {
      const std::string key = module.moduleName + '\0' + port;
      for (const CnxConnectionEnd& e : ends) {
        if (const auto it = recordOf.find(key); it != recordOf.end()) {
          mergeEnd(subModulePorts[it->second], e);
        } else {
          recordOf.emplace(key, subModulePorts.size());
          subModulePorts.push_back(newRecord(bidirOutputs, module.moduleName, port, e));
        }
      }
    });
  }
  for (const CnxUsedPort& mainPort : description_.mainModulePorts) {
    for (SubModulePort& record : subModulePorts) {
      if (record.portName != mainPort.name || !equalsIgnoringCase(record.moduleName, signatureName_))
        continue;
      record.width1 = mainPort.width1;
      record.low1 = mainPort.low1;
      record.width2 = mainPort.width2;
      record.low2 = mainPort.low2;
      break;
    }
  }
}

}  // namespace plovix
