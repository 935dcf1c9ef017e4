// The second part of the Verilog body: one instance of every sub-module, with its port connections and its
// parameter settings.
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/VerilogFileWriter.h"

namespace plovix {

namespace {

// The netlist grouped by instance once, so that each instance does not scan every connection and wire.
struct InstanceIndex {
  std::unordered_map<std::string, std::vector<const NetlistConnection*>> connectionsOf;  // by ownInstance
  std::unordered_map<std::string, std::vector<const NetlistWire*>> wiresOf;  // by sourceText up to its "."

  InstanceIndex(const std::vector<NetlistConnection>& connections, const std::vector<NetlistWire>& wires) {
    for (const NetlistConnection& c : connections) connectionsOf[c.ownInstance].push_back(&c);
    for (const NetlistWire& w : wires) {
      if (!w.isInverted) wiresOf[w.sourceText.substr(0, w.sourceText.find('.'))].push_back(&w);
    }
  }
};

// (i) The connections driving the instance's ports, grouped by consecutive equal port.
std::string connectionItems(const std::vector<const NetlistConnection*>* list) {
  std::string items;
  if (list == nullptr) return items;
  const char* separator = "";
  std::string port, rightHand;
  int members = 0;
  auto close = [&] {
    if (members == 0) return;
    if (members > 1) rightHand = "{" + rightHand + "}";
    items += formatText("%s\t\t\t\t.%s (%s)", separator, port.c_str(), toLowerText(rightHand).c_str());
    separator = ",\n";
  };
  for (const NetlistConnection* c : *list) {
    if (members > 0 && c->ownPort != port) {
      close();
      members = 0;
    }
    if (members == 0) {
      port = c->ownPort;
      rightHand.clear();
    }
    rightHand += (members++ == 0 ? "" : ", ") + c->peerName;
  }
  close();
  return items;
}

// (ii) The wires the instance's outputs drive, each port and wire pair once.
std::string wireItems(const std::vector<const NetlistWire*>* list) {
  std::string items;
  if (list == nullptr) return items;
  std::unordered_set<std::string> written;
  const char* separator = "";
  for (const NetlistWire* wire : *list) {
    const std::string port = toLowerText(wire->drivingPort);
    const std::string name = toLowerText(wire->name);
    const std::string item = "." + port + " (" + name + ")";
    // Port names with these characters could match inside another item; only the text itself can tell.
    const bool mayOverlap = port.find_first_of(". ()") != std::string::npos;
    if (written.count(item) != 0 || (mayOverlap && items.find(item) != std::string::npos)) continue;
    written.insert(item);
    items += formatText("%s\t\t\t\t.%s (%s)", separator, port.c_str(), name.c_str());
    separator = ",\n";
  }
  return items;
}

std::string defparamLines(const CnxDescription& description, const std::string& instance) {
  std::string lines;
  const char* separator = "";
  auto add = [&](const std::string& name, const std::string& value) {
    lines += formatText("%s\t\t%s_component.%s = %s", separator, instance.c_str(), toLowerText(name).c_str(),
                        value.c_str());
    separator = ",\n";
  };
  for (const CnxParameter& p : description.parameters) {
    if (p.target == instance || p.target.empty()) add(p.name, toLowerText(p.name));
  }
  for (const CnxConstant& k : description.constants) {
    if (k.target == instance || k.target.empty()) add(k.name, verilogParameterValue(k.type, k.value));
  }
  return lines;
}

template <class Map>
const typename Map::mapped_type* findIn(const Map& map, const std::string& key) {
  const auto it = map.find(key);
  return it == map.end() ? nullptr : &it->second;
}

}  // namespace

std::string VerilogFileWriter::instancesText() const {
  const InstanceIndex index(connections, wires);
  std::string text;
  for (const CnxModule& module : description_.modules) {
    const std::string& instance = module.instanceName;
    if (instance.empty()) continue;
    const std::string fromConnections = connectionItems(findIn(index.connectionsOf, instance));
    const std::string fromWires = wireItems(findIn(index.wiresOf, instance + "_component"));
    const char* joint = !fromConnections.empty() && !fromWires.empty() ? ",\n" : "";
    const std::string ports = fromConnections + joint + fromWires;
    text += formatText("\n\t%s\t%s_component (\n%s);\n", toLowerText(module.moduleName).c_str(),
                       instance.c_str(), ports.c_str());
    const std::string lines = defparamLines(description_, instance);
    if (!lines.empty()) text += "\tdefparam\n" + lines + ";\n\n";
  }
  return text;
}

}  // namespace plovix
