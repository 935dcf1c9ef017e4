// The HDL construct checks: each walks the description's lines (and where the text depends on it, the
// netlist) and files one finding per construct and place.
#include "hdl/HdlChecks.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <tuple>
#include <vector>

#include "base/TextHelpers.h"
#include "hdl/VerilogNetlist.h"

namespace plovix {

namespace {

// One CONNECT: line: the driven end's reference and the end filed under it (its peer is the driver).
struct Connect {
  Name instance;
  Name port;
  const CnxConnectionEnd* end;
};

// The CONNECT: lines in file order.
std::vector<Connect> connectsOf(const CnxDescription& description) {
  std::vector<Connect> connects;
  description.connectionMap.forEachEnd([&](Name instance, Name port, const CnxConnectionEnd& end) {
    if (end.peerIsSource) connects.push_back({instance, port, &end});
  });
  std::stable_sort(connects.begin(), connects.end(),
                   [](const Connect& a, const Connect& b) { return a.end->line < b.end->line; });
  return connects;
}

// A width as an integer, an absent range counting one bit; a width that is not a number counts 0.
long long bitCount(const Range& range) {
  if (!range.present()) return 1;
  return range.width.isInteger() ? range.width.value() : 0;
}

// The key of a sub-module port in the checks' maps.
std::string endKey(Name instance, Name port) {
  return instance.str() + "." + port.str();
}

bool isNumberConstant(const CnxConnectionEnd& end) {
  return end.peerIsConstant && end.peerPort != "VCC" && end.peerPort != "GND";
}

bool hasCapital(std::string_view name) {
  return std::any_of(name.begin(), name.end(),
                     [](char c) { return std::isupper(static_cast<unsigned char>(c)); });
}

class Findings {
 public:
  explicit Findings(OutputLanguage language) : language_(language) {}

  void add(HdlConstruct construct, std::string_view port, std::string_view instance, int32_t line) {
    HdlFinding finding{construct, language_, std::string(port), std::string(instance), line};
    if (seen_.insert({construct, finding.port, finding.instance}).second) list_.push_back(std::move(finding));
  }

  std::vector<HdlFinding> take() {
    std::stable_sort(list_.begin(), list_.end(), [](const HdlFinding& a, const HdlFinding& b) {
      return std::tie(a.construct, a.line) < std::tie(b.construct, b.line);
    });
    return std::move(list_);
  }

 private:
  OutputLanguage language_;
  std::vector<HdlFinding> list_;
  std::set<std::tuple<HdlConstruct, std::string, std::string>> seen_;
};

// The instance of `instance`'s module name, for the merged ports of the netlist.
Name moduleOf(const CnxDescription& description, Name instance) {
  for (const CnxModule& module : description.modules)
    if (module.instanceName == instance) return module.moduleName;
  return {};
}

const SubModulePort* subModulePort(const Netlist& netlist, Name module, Name port) {
  for (const SubModulePort& candidate : netlist.subModulePorts())
    if (candidate.moduleName == module && candidate.portName == port) return &candidate;
  return nullptr;
}

// A parameter goes to the instance it targets, or without a target to every instance.
bool passedOn(const CnxDescription& description, const CnxParameter& parameter) {
  return std::any_of(description.modules.begin(), description.modules.end(), [&](const CnxModule& module) {
    return parameter.target.empty() || parameter.target == module.instanceName;
  });
}

bool declaredWithAt(const CnxDescription& description, Name instance, Name port) {
  if (instance != description.mainModuleName) return false;
  return std::any_of(description.mainModulePorts.begin(), description.mainModulePorts.end(),
                     [port](const CnxUsedPort& declared) { return declared.name == port; });
}

// A sub-module output read in a single slice that starts above bit 0: its wire is only as wide as the slice.
void findSliceAboveZero(const std::map<std::string, std::set<std::pair<uint64_t, uint64_t>>>& readRanges,
                        const std::map<std::string, const Connect*>& firstReader, Findings& out) {
  for (const auto& [pin, ranges] : readRanges) {
    const CnxConnectionEnd& end = *firstReader.at(pin)->end;
    if (ranges.size() == 1 && end.peer.bits.present() && end.peer.bits.low.value() != 0)
      out.add(HdlConstruct::kBitOfOutputToBit, end.peerPort.view(), end.peerInstance.view(), end.line);
  }
}

// The checks of both languages: connections the text of neither expresses.
void findSharedConstructs(const CnxDescription& description, const Netlist& netlist,
                          const std::vector<Connect>& connects, Findings& out, bool vhdl) {
  std::map<std::string, int> feedCount;
  for (const Connect& c : connects) ++feedCount[endKey(c.instance, c.port)];
  auto variationPort = [&](Name name) -> const CnxUsedPort* {
    for (const auto* ports : {&description.inputPorts, &description.outputPorts})
      for (const CnxUsedPort& port : *ports)
        if (port.name == name) return &port;
    return nullptr;
  };
  // Per driving sub-module port, the ranges it is read in.
  std::map<std::string, std::set<std::pair<uint64_t, uint64_t>>> readRanges;
  std::map<std::string, const Connect*> firstReader;
  for (const Connect& c : connects) {
    const CnxConnectionEnd& end = *c.end;
    if (!end.peerIsConstant && end.peer.isSingleBit() &&
        (bitCount(end.own.bits) > 1 || end.own.rows.present()))
      out.add(HdlConstruct::kOneBitDrivesBus, c.port.view(), c.instance.view(), end.line);
    if (netlist.packsRows() && !c.instance.empty() && end.own.rows.present() && !end.peer.rows.present())
      out.add(HdlConstruct::kTwoDimensionalRows, c.port.view(), c.instance.view(), end.line);
    const bool fromVariationPort = !end.peerIsConstant && end.peerInstance.empty();
    if (fromVariationPort && !end.peerInverted && !c.instance.empty() && end.own.isSingleBit() &&
        !end.peer.isSingleBit())
      out.add(HdlConstruct::kBitOfBusToBit, c.port.view(), c.instance.view(), end.line);
    if (fromVariationPort && end.peerInverted && end.peer.bits.present() && !end.peer.rows.present()) {
      const CnxUsedPort* port = variationPort(end.peerPort);
      if (port != nullptr && !port->shape.rows.present() && !(port->shape.bits == end.peer.bits))
        out.add(HdlConstruct::kInvertedSlice, end.peerPort.view(), {}, end.line);
    }
    // VHDL joins several feeds of one port with their ranges; Verilog joins them by name.
    if (fromVariationPort && !c.instance.empty() && bitCount(end.own.bits) > 1 && !end.own.rows.present() &&
        (!vhdl || feedCount[endKey(c.instance, c.port)] == 1)) {
      const CnxUsedPort* port = variationPort(end.peerPort);
      if (port != nullptr && end.peer.bits.present() && !(port->shape.bits == end.peer.bits))
        out.add(HdlConstruct::kSliceToWholePort, c.port.view(), c.instance.view(), end.line);
    }
    if (end.peerIsConstant || end.peerInstance.empty()) continue;
    if (end.peerInverted)
      out.add(HdlConstruct::kInvertedOutput, end.peerPort.view(), end.peerInstance.view(), end.line);
    // A port declared whole with "@" is one signal, read in any slice.
    if (declaredWithAt(description, end.peerInstance, end.peerPort)) continue;
    auto& ranges = readRanges[endKey(end.peerInstance, end.peerPort)];
    ranges.insert({end.peer.bits.low.raw(), end.peer.bits.width.raw()});
    firstReader.emplace(endKey(end.peerInstance, end.peerPort), &c);
    if (ranges.size() == 2)
      out.add(HdlConstruct::kPinReadTwice, end.peerPort.view(), end.peerInstance.view(), end.line);
  }
  findSliceAboveZero(readRanges, firstReader, out);
}

void findVhdlConstructs(const CnxDescription& description, const Netlist& netlist,
                        const std::vector<Connect>& connects, Findings& out) {
  if (!description.constants.empty()) {
    for (const CnxModule& module : description.modules) {
      const bool hasOwn = std::any_of(
          description.constants.begin(), description.constants.end(),
          [&](const CnxConstant& c) { return c.target.empty() || c.target == module.instanceName; });
      if (!hasOwn) out.add(HdlConstruct::kEmptyGenericMap, {}, module.instanceName.view(), module.line);
    }
  }

  auto reserved = [&](Name name, std::string_view instance, int32_t line) {
    if (isVhdlReservedWord(name.view())) out.add(HdlConstruct::kReservedWord, name.view(), instance, line);
  };
  for (const CnxModule& module : description.modules) {
    reserved(module.moduleName, {}, module.line);
    if (!module.instanceName.empty() && isVhdlReservedWord(module.instanceName.str() + "_component"))
      out.add(HdlConstruct::kReservedWord, module.instanceName.view(), {}, module.line);
  }
  for (const auto* list : {&description.constants, &description.parameters})
    for (const CnxParameter& value : *list) reserved(value.name, {}, value.line);
  for (const auto* ports : {&description.inputPorts, &description.outputPorts})
    for (const CnxUsedPort& port : *ports) reserved(port.name, {}, port.line);
  for (const Connect& c : connects) {
    if (!c.instance.empty()) reserved(c.port, c.instance.view(), c.end->line);
    if (!c.end->peerIsConstant && !c.end->peerInstance.empty())
      reserved(c.end->peerPort, c.end->peerInstance.view(), c.end->line);
  }

  for (const CnxParameter& parameter : description.parameters) {
    if (passedOn(description, parameter))
      out.add(HdlConstruct::kPassedParameter, parameter.name.view(), {}, parameter.line);
  }

  for (const auto* ports : {&description.inputPorts, &description.outputPorts}) {
    for (const CnxUsedPort& port : *ports) {
      if (port.direction != PortDirection::kOutput && port.defaultValue.kind == DefaultKind::kOther)
        out.add(HdlConstruct::kNumericDefault, port.name.view(), {}, port.line);
    }
  }

  // The one component declaration of a module takes the generics (constants and parameters) of its first
  // instance.
  auto constantsOf = [&](Name instance) {
    std::set<std::string> names;
    for (const auto* list : {&description.constants, &description.parameters})
      for (const CnxParameter& c : *list)
        if (c.target.empty() || c.target == instance) names.insert(toLowerText(c.name.view()));
    return names;
  };
  std::map<std::string, std::set<std::string>> firstInstanceConstants;
  for (const CnxModule& module : description.modules) {
    const auto [first, isFirst] =
        firstInstanceConstants.emplace(module.moduleName.str(), constantsOf(module.instanceName));
    if (!isFirst && first->second != constantsOf(module.instanceName))
      out.add(HdlConstruct::kGenericsOfFirstInstance, {}, module.instanceName.view(), module.line);
  }

  // Per driven sub-module port, the feeds and the bits they add up to.
  std::map<std::string, std::pair<long long, int>> feeds;
  for (const Connect& c : connects) {
    const CnxConnectionEnd& end = *c.end;
    if (isNumberConstant(end) && end.own.isSingleBit())
      out.add(HdlConstruct::kNumberDrivesBit, c.port.view(), c.instance.view(), end.line);
    // A constant's signal holds its bits from bit 0, however high the slice of the output it drives.
    if (c.instance.empty() && end.peerIsConstant && end.own.bits.present() && end.own.bits.low.value() != 0)
      out.add(HdlConstruct::kConstantAboveZero, c.port.view(), {}, end.line);
    // Rows of a two-dimensional port and ports declared whole with "@" are joined into one signal.
    if (c.instance.empty() || end.own.rows.present() || declaredWithAt(description, c.instance, c.port))
      continue;
    if (end.peerIsConstant && end.own.bits.present() && end.own.bits.low.value() != 0)
      out.add(HdlConstruct::kConstantSlice, c.port.view(), c.instance.view(), end.line);
    if (!end.peerIsConstant && end.own.bits.present() && !end.peer.bits.present() &&
        !end.peer.rows.present() && bitCount(end.own.bits) == 1)
      out.add(HdlConstruct::kSlicedFeeds, c.port.view(), c.instance.view(), end.line);
    auto& [bits, count] = feeds[endKey(c.instance, c.port)];
    bits += bitCount(end.own.bits);
    ++count;
    if (count < 2) continue;
    const SubModulePort* merged = subModulePort(netlist, moduleOf(description, c.instance), c.port);
    if (merged == nullptr || bitCount(merged->shape.bits) < bits)
      out.add(HdlConstruct::kSlicedFeeds, c.port.view(), c.instance.view(), end.line);
  }
}

void findVerilogConstructs(const CnxDescription& description, const Netlist& netlist,
                           std::string_view signatureName, const std::vector<Connect>& connects,
                           Findings& out) {
  for (const CnxParameter& parameter : description.parameters) {
    if (passedOn(description, parameter) && hasCapital(parameter.name.view()))
      out.add(HdlConstruct::kUpperCaseParameter, parameter.name.view(), {}, parameter.line);
  }

  for (const Connect& c : connects) {
    const CnxConnectionEnd& end = *c.end;
    if (end.peerIsConstant && end.peerPort == "VCC" && (bitCount(end.own.bits) > 1 || end.own.rows.present()))
      out.add(HdlConstruct::kVccDrivesBus, c.port.view(), c.instance.view(), end.line);
  }

  // Names the text writes as they stand or lower-cased.
  auto keyword = [&](Name name, std::string_view instance, int32_t line) {
    if (isVerilogKeyword(name.view())) out.add(HdlConstruct::kVerilogKeyword, name.view(), instance, line);
  };
  for (const CnxModule& module : description.modules) {
    keyword(module.moduleName, {}, module.line);
    if (hasCapital(module.moduleName.view()))
      out.add(HdlConstruct::kLowerCasedName, module.moduleName.view(), {}, module.line);
  }
  for (const auto* list : {&description.constants, &description.parameters})
    for (const CnxParameter& value : *list) keyword(value.name, {}, value.line);
  for (const auto* ports : {&description.inputPorts, &description.outputPorts})
    for (const CnxUsedPort& port : *ports) keyword(port.name, {}, port.line);
  for (const Connect& c : connects) {
    if (!c.instance.empty()) keyword(c.port, c.instance.view(), c.end->line);
    if (c.end->peerIsConstant || c.end->peerInstance.empty()) continue;
    keyword(c.end->peerPort, c.end->peerInstance.view(), c.end->line);
    if (hasCapital(c.end->peerPort.view()))
      out.add(HdlConstruct::kLowerCasedName, c.end->peerPort.view(), c.end->peerInstance.view(), c.end->line);
  }

  // An output is declared from the low index of its first connection and the widths of its group.
  auto portLine = [&](Name name) -> const CnxUsedPort* {
    for (const CnxUsedPort& port : description.outputPorts)
      if (port.name == name) return &port;
    return nullptr;
  };
  const std::vector<NetlistConnection>& connections = netlist.connections();
  for (size_t i = 0; i < connections.size();) {
    const NetlistConnection& first = connections[i];
    if (!first.ownInstance.empty()) {
      ++i;
      continue;
    }
    long long width = 0;
    size_t j = i;
    for (; j < connections.size() && connections[j].ownInstance.empty() &&
           connections[j].ownPort == first.ownPort;
         ++j)
      width += connections[j].peer.bits.present() ? bitCount(connections[j].peer.bits) : 0;
    i = j;
    const CnxUsedPort* port = portLine(first.ownPort);
    if (port == nullptr) continue;
    // A single-bit port fed from a slice is declared as a one-bit vector.
    const bool scalarAsVector = !port->shape.bits.present() && !port->shape.rows.present() && width > 0;
    const bool otherRange = port->shape.bits.present() && (first.own.bits.low != port->shape.bits.low ||
                                                           width != bitCount(port->shape.bits));
    if (scalarAsVector || otherRange)
      out.add(HdlConstruct::kOutputRange, first.ownPort.view(), {}, port->line);
  }

  // A main-module wire narrowed to one bit where its user reads several.
  const VerilogNetlist declared =
      declareVerilogWires(netlist, description, signatureName, HdlTextMode::kStandard);
  const std::vector<NetlistConnection>& narrowed = declared.netlist.connections();
  for (size_t i = 0; i < narrowed.size() && i < connections.size(); ++i) {
    const NetlistConnection& c = narrowed[i];
    if (c.peerBitsRange == connections[i].peerBitsRange || bitCount(c.peer.bits) <= 1) continue;
    int32_t line = 0;
    for (const CnxConnectionEnd& end : description.connectionMap.find(c.ownInstance.view(), c.ownPort.view()))
      if (end.peerIsSource) line = end.line;
    out.add(HdlConstruct::kMainPortNarrowed, c.ownPort.view(), c.ownInstance.view(), line);
  }
}

}  // namespace

bool readsSliceOfVariationPort(const CnxDescription& description, const NetlistConnection& connection) {
  if (connection.ownInstance.empty() || !connection.peer.bits.present() || connection.peer.rows.present() ||
      connection.own.rows.present())
    return false;
  for (const auto* ports : {&description.inputPorts, &description.outputPorts}) {
    for (const CnxUsedPort& port : *ports)
      if (port.name == connection.peerName) return !(port.shape.bits == connection.peer.bits);
  }
  return false;
}

std::vector<HdlFinding> findHdlConstructs(const CnxDescription& description, const Netlist& netlist,
                                          std::string_view signatureName, OutputLanguage language) {
  Findings out(language);
  if (language == OutputLanguage::kThdl) return out.take();
  const std::vector<Connect> connects = connectsOf(description);
  const bool vhdl = language == OutputLanguage::kVhdl;
  if (vhdl) {
    findVhdlConstructs(description, netlist, connects, out);
  } else {
    findVerilogConstructs(description, netlist, signatureName, connects, out);
  }
  findSharedConstructs(description, netlist, connects, out, vhdl);
  return out.take();
}

}  // namespace plovix
