// The VHDL component declarations of the sub-modules a variation instantiates.
#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

namespace {

// The generic lines of a component: constants (names in lower case) and parameters that belong to the
// instance or to every instance.
// The standard text types a parameter with its own name; the valid text with its value's type.
std::string componentGenericText(const CnxDescription& description, Name instance, HdlTextMode mode) {
  std::string text;
  const char* prefix = "\tGENERIC (\n";
  for (const CnxConstant& constant : description.constants) {
    if (constant.target != instance && !constant.target.empty()) continue;
    appendFormatted(text, "%s\t\t%s\t\t: %s", prefix, toLowerText(constant.name.view()).c_str(),
                    vhdlGenericType(constant));
    prefix = ";\n";
  }
  for (const CnxParameter& parameter : description.parameters) {
    if (parameter.target != instance && !parameter.target.empty()) continue;
    appendFormatted(text, "%s\t\t%s\t\t: %s", prefix, parameter.name.c_str(),
                    mode == HdlTextMode::kValid ? vhdlGenericType(parameter) : parameter.name.c_str());
    prefix = ";\n";
  }
  if (!text.empty()) text += "\n\t);\n";
  return text;
}

// Per module and port (module + "." + port), the highest bit + 1 that the connections of its instances feed.
std::unordered_map<std::string, long long> fedWidths(const CnxDescription& description,
                                                     const Netlist& netlist) {
  std::unordered_map<Name, Name> moduleOf;
  for (const CnxModule& module : description.modules)
    moduleOf.emplace(module.instanceName, module.moduleName);
  std::unordered_map<std::string, long long> widths;
  for (const NetlistConnection& c : netlist.connections()) {
    const auto module = moduleOf.find(c.ownInstance);
    if (c.ownInstance.empty() || module == moduleOf.end() || !c.own.bits.present() || c.own.rows.present())
      continue;
    const long long top = vhdlIntegerOf(c.own.bits.low) + vhdlIntegerOf(c.own.bits.width);
    long long& width = widths[module->second.str() + "." + c.ownPort.str()];
    width = std::max(width, top);
  }
  return widths;
}

}  // namespace

// One declaration per distinct module, with the generics of its first instance. In the valid text a port fed
// in slices is as wide as the highest bit fed, not as the widest slice.
std::string VhdlFileWriter::componentDeclarationsText() const {
  return componentDeclarationsText(Name(), Name());
}

std::string VhdlFileWriter::componentDeclarationsText(Name onlyModule, Name genericsInstance) const {
  const std::vector<SubModulePort>& subModulePorts = netlist_.subModulePorts();
  const auto widths = mode_ == HdlTextMode::kValid ? fedWidths(description_, netlist_)
                                                   : std::unordered_map<std::string, long long>();
  TextPool texts;
  std::unordered_map<Name, std::vector<size_t>> portsByModule;
  for (size_t i = 0; i < subModulePorts.size(); ++i) portsByModule[subModulePorts[i].moduleName].push_back(i);

  std::string text;
  std::unordered_set<Name> declared;
  for (const CnxModule& module : description_.modules) {
    if ((!onlyModule.empty() && module.moduleName != onlyModule) ||
        !declared.insert(module.moduleName).second)
      continue;
    std::string portLines;
    const auto ports = portsByModule.find(module.moduleName);
    if (ports != portsByModule.end()) {
      const char* separator = "";
      for (size_t i : ports->second) {
        const SubModulePort& port = subModulePorts[i];
        Shape shape = port.shape;
        const auto fed = widths.find(port.moduleName.str() + "." + port.portName.str());
        if (fed != widths.end() &&
            fed->second > vhdlIntegerOf(shape.bits.width) + vhdlIntegerOf(shape.bits.low))
          shape.bits = Range{Bound::ofNumber(fed->second, texts), Bound()};
        appendFormatted(portLines, "%s\t\t\t%s\t: %s %s", separator, port.portName.c_str(),
                        subModuleDirectionWord(port.direction), vhdlTypeText(shape).c_str());
        separator = ";\n";
      }
    }
    appendFormatted(
        text, "\n\n\tCOMPONENT %s\n%s\tPORT (\n%s\n\t);\n\tEND COMPONENT;\n\n", module.moduleName.c_str(),
        componentGenericText(description_, onlyModule.empty() ? module.instanceName : genericsInstance, mode_)
            .c_str(),
        portLines.c_str());
  }
  return text;
}

}  // namespace plovix
