// The second part of the Verilog body: one instance of every sub-module, with its port connections and its
// parameter settings.
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/HdlChecks.h"
#include "hdl/InstanceGroups.h"
#include "hdl/ValidWiring.h"
#include "hdl/VerilogFileWriter.h"

namespace plovix {

namespace {

// The netlist grouped by instance once, so that each instance does not scan every connection and wire.
struct InstanceIndex {
  InstanceGroups connectionsOf;                                                   // by ownInstance
  std::unordered_map<std::string_view, std::vector<const NetlistWire*>> wiresOf;  // by sourceText up to "."

  InstanceIndex(const std::vector<NetlistConnection>& connections, const std::vector<NetlistWire>& wires)
      : connectionsOf(connections) {
    for (const NetlistWire& w : wires) {
      const std::string_view source = w.sourceText.view();
      if (!w.isInverted) wiresOf[source.substr(0, source.find('.'))].push_back(&w);
    }
  }
};

// (i) The connections driving the instance's ports, grouped by consecutive equal port.
// The valid text reads a slice of a variation port as the slice (readsSliceOfVariationPort), and the slice
// it uses of a wider wire.
std::string connectionItems(const std::vector<NetlistConnection>& connections, std::span<const uint32_t> list,
                            const CnxDescription& description, const WireSlices* slices) {
  std::string items;
  const char* separator = "";
  Name port;
  std::string rightHand;
  int members = 0;
  auto close = [&] {
    if (members == 0) return;
    if (members > 1) rightHand = "{" + rightHand + "}";
    appendFormatted(items, "%s\t\t\t\t.%s (%s)", separator, port.c_str(), toLowerText(rightHand).c_str());
    separator = ",\n";
  };
  for (const uint32_t i : list) {
    const NetlistConnection* c = &connections[i];
    if (members > 0 && c->ownPort != port) {
      close();
      members = 0;
    }
    if (members == 0) {
      port = c->ownPort;
      rightHand.clear();
    }
    rightHand += members++ == 0 ? "" : ", ";
    rightHand += c->peerName.view();
    if (slices != nullptr && (readsSliceOfVariationPort(description, *c) || slices->readsPart(*c)))
      rightHand += c->peerBitsRange.view();
  }
  close();
  return items;
}

// (ii) The wires the instance's outputs drive, each port and wire pair once. The standard text lower-cases
// the port names, the valid text writes them as the description does.
std::string wireItems(const std::vector<const NetlistWire*>* list, HdlTextMode mode) {
  std::string items;
  if (list == nullptr) return items;
  std::unordered_set<std::string> written;
  const char* separator = "";
  for (const NetlistWire* wire : *list) {
    const std::string port =
        mode == HdlTextMode::kValid ? wire->drivingPort.str() : toLowerText(wire->drivingPort.view());
    const std::string name = toLowerText(wire->name.view());
    const std::string item = "." + port + " (" + name + ")";
    // Port names with these characters could match inside another item; only the text itself can tell.
    const bool mayOverlap = port.find_first_of(". ()") != std::string::npos;
    if (written.count(item) != 0 || (mayOverlap && items.find(item) != std::string::npos)) continue;
    written.insert(item);
    appendFormatted(items, "%s\t\t\t\t.%s (%s)", separator, port.c_str(), name.c_str());
    separator = ",\n";
  }
  return items;
}

// The parameters are passed on by name: lower-cased in the standard text, as declared in the valid one.
std::string defparamLines(const CnxDescription& description, Name instance, HdlTextMode mode) {
  std::string lines;
  const char* separator = "";
  auto add = [&](Name name, const std::string& value) {
    appendFormatted(lines, "%s\t\t%s_component.%s = %s", separator, instance.c_str(),
                    toLowerText(name.view()).c_str(), value.c_str());
    separator = ",\n";
  };
  for (const CnxParameter& p : description.parameters) {
    if (p.target == instance || p.target.empty())
      add(p.name, mode == HdlTextMode::kValid ? p.name.str() : toLowerText(p.name.view()));
  }
  for (const CnxConstant& k : description.constants) {
    if (k.target == instance || k.target.empty()) add(k.name, verilogParameterValue(k.type, k.value));
  }
  return lines;
}

template <class Map, class Key>
const typename Map::mapped_type* findIn(const Map& map, const Key& key) {
  const auto it = map.find(key);
  return it == map.end() ? nullptr : &it->second;
}

}  // namespace

std::string VerilogFileWriter::instancesText(const VerilogNetlist& declaration) const {
  std::string text;
  appendInstances(text, declaration);
  return text;
}

void VerilogFileWriter::appendInstances(std::string& text, const VerilogNetlist& declaration) const {
  const InstanceIndex index(declaration.netlist.connections(), declaration.netlist.wires());
  const std::optional<WireSlices> slices =
      mode_ == HdlTextMode::kValid ? std::optional<WireSlices>(declaration.netlist) : std::nullopt;
  for (const CnxModule& module : description_.modules) {
    const Name instance = module.instanceName;
    if (instance.empty()) continue;
    const std::string fromConnections =
        connectionItems(declaration.netlist.connections(), index.connectionsOf.of(instance), description_,
                        slices ? &*slices : nullptr);
    const std::string label = instance.str() + "_component";
    const std::string fromWires = wireItems(findIn(index.wiresOf, std::string_view(label)), mode_);
    const char* joint = !fromConnections.empty() && !fromWires.empty() ? ",\n" : "";
    const std::string ports = fromConnections + joint + fromWires;
    appendTemplate(
        text, "\n\t%s\t%s_component (\n%s);\n",
        {mode_ == HdlTextMode::kValid ? module.moduleName.str() : toLowerText(module.moduleName.view()),
         instance.view(), ports});
    const std::string lines = defparamLines(description_, instance, mode_);
    if (!lines.empty()) text += "\tdefparam\n" + lines + ";\n\n";
  }
}

}  // namespace plovix
