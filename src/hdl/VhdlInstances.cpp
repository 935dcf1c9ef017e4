// The VHDL instances of the sub-modules, with their generic and port maps.
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "base/Format.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

namespace {

// The constants that belong to the instance or to every instance; empty when there are no constants at all.
std::string genericMapText(const CnxDescription& description, const std::string& instance) {
  if (description.constants.empty()) return {};
  std::string lines;
  const char* prefix = "";
  for (const CnxConstant& constant : description.constants) {
    if (constant.target != instance && !constant.target.empty()) continue;
    lines += formatText("%s\t\t%s => %s", prefix, constant.name.c_str(), vhdlGenericValue(constant).c_str());
    prefix = ",\n";
  }
  return formatText("\tGENERIC MAP (\n%s\n\t)", lines.c_str());
}

// Where the port map entries of every instance come from, gathered once for all instances.
struct PortMapSources {
  std::unordered_map<std::string, std::vector<size_t>> connectionsByInstance;
  std::unordered_map<std::string, std::string> conversionByKey;       // the first conversion of a key
  std::unordered_map<std::string, std::vector<size_t>> wiresByLabel;  // not inverted, by text before "."
};

PortMapSources gatherSources(const std::vector<NetlistConnection>& connections,
                             const std::vector<VhdlConversion>& conversions,
                             const std::vector<NetlistWire>& wires) {
  PortMapSources sources;
  for (size_t i = 0; i < connections.size(); ++i) {
    sources.connectionsByInstance[connections[i].ownInstance].push_back(i);
  }
  for (const VhdlConversion& conversion : conversions) {
    sources.conversionByKey.emplace(conversion.sourceKey, conversion.name);
  }
  for (size_t i = 0; i < wires.size(); ++i) {
    if (wires[i].isInverted) continue;
    const std::string& source = wires[i].sourceText;
    sources.wiresByLabel[source.substr(0, source.find('.'))].push_back(i);
  }
  return sources;
}

}  // namespace

std::string VhdlFileWriter::instancesText() const {
  const PortMapSources sources = gatherSources(connections, conversions, wires);
  std::string text;
  for (const CnxModule& module : description_.modules) {
    const std::string& instance = module.instanceName;
    std::string entries;
    const char* prefix = "";
    auto addEntry = [&](const std::string& port, const std::string& signal) {
      entries += formatText("%s\t\t%s => %s", prefix, port.c_str(), signal.c_str());
      prefix = ",\n";
    };

    // Connections: consecutive connections of one port are joined with " & ", or replaced by the port's
    // conversion signal.
    std::string port, right, separator;
    auto close = [&] {
      if (right.empty()) return;
      const auto conversion = sources.conversionByKey.find(instance + "." + port);
      addEntry(port, conversion != sources.conversionByKey.end() ? conversion->second : right);
    };
    const auto taken = sources.connectionsByInstance.find(instance);
    if (taken != sources.connectionsByInstance.end()) {
      bool first = true;
      for (size_t i : taken->second) {
        const NetlistConnection& c = connections[i];
        if (first || c.ownPort != port) {
          if (!first) close();
          port = c.ownPort;
          right.clear();
          separator.clear();
        } else {
          separator = " & ";
        }
        first = false;
        right += separator + c.peerName;
        if (c.peerWidth2 != "0" && c.ownWidth2 == "0" && c.conversionRole == kConversionNone) {
          right += "(" + c.peerLow2 + ")";
        } else if (c.peerWidth1 == "0" && c.ownWidth1 != "0" && c.conversionRole == kConversionNone) {
          right += "(" + c.peerLow1 + ")";
        }
      }
      close();
    }

    // Outputs of the instance: one entry per driving port, naming the first wire made for it.
    const auto outputs = sources.wiresByLabel.find(vhdlInstanceLabel(instance));
    if (outputs != sources.wiresByLabel.end()) {
      std::unordered_set<std::string> printed;
      for (size_t i : outputs->second) {
        if (printed.insert(wires[i].drivingPort).second) addEntry(wires[i].drivingPort, wires[i].name);
      }
    }

    text += formatText("\t%s : %s\n%s\n%s\n\n", vhdlInstanceLabel(instance).c_str(),
                       module.moduleName.c_str(), genericMapText(description_, instance).c_str(),
                       formatText("\tPORT MAP (\n%s\n\t);\n\n", entries.c_str()).c_str());
  }
  return text;
}

}  // namespace plovix
