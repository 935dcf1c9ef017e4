// The VHDL instances of the sub-modules, with their generic and port maps.
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/HdlChecks.h"
#include "hdl/InstanceGroups.h"
#include "hdl/ValidWiring.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

namespace {

// The constants that belong to the instance or to every instance; empty when there are no constants at all.
// The valid text also passes the parameters on with their values, and leaves out a generic map without lines.
std::string genericMapText(const CnxDescription& description, Name instance, HdlTextMode mode) {
  const bool valid = mode == HdlTextMode::kValid;
  if (description.constants.empty() && (!valid || description.parameters.empty())) return {};
  std::string lines;
  const char* prefix = "";
  for (const CnxConstant& constant : description.constants) {
    if (constant.target != instance && !constant.target.empty()) continue;
    appendFormatted(lines, "%s\t\t%s => %s", prefix, constant.name.c_str(),
                    vhdlGenericValue(constant).c_str());
    prefix = ",\n";
  }
  for (const CnxParameter& parameter : description.parameters) {
    if (!valid || (parameter.target != instance && !parameter.target.empty())) continue;
    appendFormatted(lines, "%s\t\t%s => %s", prefix, parameter.name.c_str(),
                    vhdlGenericValue(parameter).c_str());
    prefix = ",\n";
  }
  if (valid && lines.empty()) return {};
  return formatText("\tGENERIC MAP (\n%s\n\t)", lines.c_str());
}

// Where the port map entries of every instance come from, gathered once for all instances.
struct PortMapSources {
  explicit PortMapSources(const VhdlNetlist& signals)
      : connectionsByInstance(signals.netlist.connections()) {}
  InstanceGroups connectionsByInstance;
  std::unordered_map<std::string, Name> conversionByKey;                   // the first conversion of a key
  std::unordered_map<std::string_view, std::vector<size_t>> wiresByLabel;  // not inverted, by text before "."
};

PortMapSources gatherSources(const VhdlNetlist& signals) {
  const std::vector<NetlistWire>& wires = signals.netlist.wires();
  PortMapSources sources(signals);
  for (const NetlistConversion& conversion : signals.conversions) {
    sources.conversionByKey.emplace(conversion.key, conversion.name);
  }
  for (size_t i = 0; i < wires.size(); ++i) {
    if (wires[i].isInverted) continue;
    const std::string_view source = wires[i].sourceText.view();
    sources.wiresByLabel[source.substr(0, source.find('.'))].push_back(i);
  }
  return sources;
}

// The names of the generics an instance maps in the valid text: its constants and parameters.
std::set<std::string> genericNames(const CnxDescription& description, Name instance) {
  std::set<std::string> names;
  for (const auto* list : {&description.constants, &description.parameters})
    for (const CnxParameter& value : *list)
      if (value.target.empty() || value.target == instance) names.insert(toLowerText(value.name.view()));
  return names;
}

}  // namespace

bool VhdlFileWriter::genericsDiffer(const CnxModule& module) const {
  for (const CnxModule& first : description_.modules) {
    if (first.moduleName != module.moduleName) continue;
    return &first != &module &&
           genericNames(description_, first.instanceName) != genericNames(description_, module.instanceName);
  }
  return false;
}

std::string VhdlFileWriter::instancesText(const VhdlNetlist& signals) const {
  std::string text;
  appendInstances(text, signals);
  return text;
}

void VhdlFileWriter::appendInstances(std::string& text, const VhdlNetlist& signals) const {
  const std::vector<NetlistConnection>& connections = signals.netlist.connections();
  const std::vector<NetlistWire>& wires = signals.netlist.wires();
  const PortMapSources sources = gatherSources(signals);
  const std::optional<WireSlices> slices =
      mode_ == HdlTextMode::kValid ? std::optional<WireSlices>(signals.netlist) : std::nullopt;
  for (const CnxModule& module : description_.modules) {
    const Name instance = module.instanceName;
    std::string entries;
    const char* prefix = "";
    auto addEntry = [&](std::string_view port, std::string_view signal) {
      appendFormatted(entries, "%s\t\t%s => %s", prefix, std::string(port).c_str(),
                      std::string(signal).c_str());
      prefix = ",\n";
    };

    // Connections: consecutive connections of one port are joined with " & ", or replaced by the port's
    // conversion signal.
    Name port;
    std::string right, separator;
    auto close = [&] {
      if (right.empty()) return;
      const auto conversion = sources.conversionByKey.find(instance.str() + "." + port.str());
      if (conversion != sources.conversionByKey.end()) {
        addEntry(port.view(), conversion->second.view());
      } else {
        addEntry(port.view(), right);
      }
    };
    const std::span<const uint32_t> taken = sources.connectionsByInstance.of(instance);
    if (!taken.empty()) {
      bool first = true;
      for (const uint32_t i : taken) {
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
        right += separator;
        right += c.peerName.view();
        if (slices && c.own.bits.present() &&
            (readsSliceOfVariationPort(description_, c) || slices->readsPart(c)))
          right += vhdlRangeText(c.peer);
        if (c.peer.bits.present() && !c.own.bits.present() && c.role == ConversionRole::kNone) {
          right += "(" + c.peer.bits.low.text() + ")";
        } else if (!c.peer.rows.present() && c.own.rows.present() && c.role == ConversionRole::kNone) {
          right += "(" + c.peer.rows.low.text() + ")";
        }
      }
      close();
    }

    // Outputs of the instance: one entry per driving port, naming the first wire made for it.
    const std::string label = vhdlInstanceLabel(instance);
    const auto outputs = sources.wiresByLabel.find(label);
    if (outputs != sources.wiresByLabel.end()) {
      std::unordered_set<Name> printed;
      for (size_t i : outputs->second) {
        if (printed.insert(wires[i].drivingPort).second)
          addEntry(wires[i].drivingPort.view(), wires[i].name.view());
      }
    }

    // The valid text declares the component again, in a block of its own, for an instance whose generics
    // differ from those of its module's first instance.
    const bool block = mode_ == HdlTextMode::kValid && genericsDiffer(module);
    if (block) {
      appendFormatted(text, "\t%s_block : BLOCK\n", label.c_str());
      text += componentDeclarationsText(module.moduleName, instance);
      text += "\tBEGIN\n";
    }
    text += fillTemplate("\t%s : %s\n%s\n%s\n\n",
                         {label, module.moduleName.view(), genericMapText(description_, instance, mode_),
                          fillTemplate("\tPORT MAP (\n%s\n\t);\n\n", {entries})});
    if (block) appendFormatted(text, "\tEND BLOCK %s_block;\n\n", label.c_str());
  }
}

}  // namespace plovix
