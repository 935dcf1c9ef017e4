// The VHDL signal declarations: the two-dimensional unpacking procedure, the wires and the conversion
// signals.
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "base/Format.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

namespace {

// The keys of the wires declared so far, as the text ",key1,key2," that a repeated key is looked up in. Keys
// without a comma are found through a set, which gives the same answer as searching the text.
class DeclaredKeys {
 public:
  bool contains(const std::string& key) const {
    if (keysHaveCommas_ || key.find(',') != std::string::npos) {
      return text_.find("," + key + ",") != std::string::npos;
    }
    return keys_.count(key) != 0;
  }
  void add(const std::string& key) {
    text_ += key + ",";
    keys_.insert(key);
    if (key.find(',') != std::string::npos) keysHaveCommas_ = true;
  }

 private:
  std::string text_ = ",";
  std::unordered_set<std::string> keys_;
  bool keysHaveCommas_ = false;
};

}  // namespace

std::string VhdlFileWriter::signalDeclarationsText() {
  buildNetlist();
  if (subModulePorts.empty()) buildSubModulePorts();
  std::string text;
  if (netlistFlag != 0) text += twoDimensionalProcedureText();
  text += wireDeclarationsText();
  buildConversions();
  for (const VhdlConversion& conversion : conversions) {
    text += formatText("\tSIGNAL %s\t: %s;\n", conversion.name.c_str(),
                       vhdlTypeText(conversion.width1, "0", conversion.width2, "0").c_str());
  }
  return text;
}

// The procedure is sized by the last two-dimensional wire; a missing second width counts as 1.
std::string VhdlFileWriter::twoDimensionalProcedureText() const {
  std::string text = "\ttype STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;\n\n";
  const NetlistWire* sized = nullptr;
  for (const NetlistWire& wire : wires) {
    if (wire.width1 != "0") sized = &wire;
  }
  if (sized == nullptr) return text;
  const long long rows = vhdlIntegerOf(sized->width1);
  const long long columns = sized->width2 == "0" ? 1 : vhdlIntegerOf(sized->width2);
  text += formatText(
      "\tprocedure conv_2_2d(signal signal_in\t: IN std_logic_vector(%s DOWNTO %s);\n\t\t\t\t\t\tsignal "
      "signal_out\t: OUT std_logic_2d(%s DOWNTO %s, %s DOWNTO %s)) IS\n",
      formatInt(rows * columns - 1).c_str(), "0", formatInt(rows - 1).c_str(), "0",
      formatInt(columns - 1).c_str(), "0");
  text += formatText(
      "\tBEGIN\n\t\tFOR i IN %s TO %s LOOP\n\t\t\tFOR j IN %s TO %s LOOP\n\t\t\t\tsignal_out(i, j) <= "
      "signal_in(i * %s + j);\n\t\t\tEND LOOP;\n\t\tEND LOOP;\n\tEND conv_2_2d;\n\n",
      "0", formatInt(rows - 1).c_str(), "0", formatInt(columns - 1).c_str(), formatInt(columns).c_str());
  return text;
}

// Constant wires are always declared, with a bit-vector twin when they are vectors. Other wires are widened
// to the main-module port they come from; a wire whose key was declared already is not declared again, and
// the connections that use it take the name of the wire declared last.
std::string VhdlFileWriter::wireDeclarationsText() {
  std::unordered_map<std::string, std::vector<size_t>> connectionsByPeer;
  for (size_t i = 0; i < connections.size(); ++i) connectionsByPeer[connections[i].peerName].push_back(i);

  std::string text;
  DeclaredKeys declared;
  std::string lastDeclared;
  for (NetlistWire& wire : wires) {
    if (wire.isConstant) {
      if (wire.width1 != "0" || wire.width2 != "0") {
        text += formatText("\tSIGNAL %s_bv\t: %s;\n", wire.name.c_str(),
                           vhdlBitVectorTypeText(wire.width2, "0").c_str());
      }
      text += formatText("\tSIGNAL %s\t: %s;\n", wire.name.c_str(),
                         vhdlTypeText(wire.width1, "0", wire.width2, "0").c_str());
      continue;
    }
    fixMainModuleWire(wire);
    if (!declared.contains(wire.sourceKey)) {
      text += formatText("\tSIGNAL %s\t: %s;\n", wire.name.c_str(),
                         vhdlTypeText(wire.width1, "0", wire.width2, "0").c_str());
      declared.add(wire.sourceKey);
      lastDeclared = wire.name;
      continue;
    }
    const auto users = connectionsByPeer.find(wire.name);
    if (users == connectionsByPeer.end() || wire.name == lastDeclared) continue;
    std::vector<size_t> moved = std::move(users->second);
    connectionsByPeer.erase(users);
    for (size_t i : moved) connections[i].peerName = lastDeclared;
    std::vector<size_t>& target = connectionsByPeer[lastDeclared];
    target.insert(target.end(), moved.begin(), moved.end());
  }
  return text;
}

}  // namespace plovix
