// The VHDL signal declarations: the two-dimensional unpacking procedure, the wires and the conversion
// signals.
#include <string>

#include "base/Format.h"
#include "hdl/ShapeTexts.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

// Constant wires are declared with a bit-vector twin when they are vectors; any other wire as the
// declaration step widened it, when it is declared at all.
std::string VhdlFileWriter::signalDeclarationsText(const VhdlNetlist& signals) const {
  std::string text;
  appendSignalDeclarations(text, signals);
  return text;
}

void VhdlFileWriter::appendSignalDeclarations(std::string& text, const VhdlNetlist& signals) const {
  if (netlist_.packsRows()) text += twoDimensionalProcedureText();
  const std::vector<NetlistWire>& wires = signals.netlist.wires();
  ShapeTexts types;
  for (size_t w = 0; w < wires.size(); ++w) {
    const NetlistWire& wire = wires[w];
    const Shape shape = shapeOf(wire);
    if (wire.isConstant && !shape.isSingleBit()) {
      appendFormatted(text, "\tSIGNAL %s_bv\t: %s;\n", wire.name.c_str(),
                      vhdlBitVectorTypeText(shape.bits).c_str());
    }
    if (!signals.declared[w]) continue;
    const std::string& type = types.get(keyOf(shape), [&shape] { return vhdlTypeText(shape); });
    appendFormatted(text, "\tSIGNAL %s\t: %s;\n", wire.name.c_str(), type.c_str());
  }
  for (const NetlistConversion& conversion : signals.conversions) {
    appendFormatted(
        text, "\tSIGNAL %s\t: %s;\n", conversion.name.c_str(),
        vhdlTypeText(Shape{{conversion.rowsWidth, Bound()}, {conversion.bitsWidth, Bound()}}).c_str());
  }
}

// The procedure is sized by the last two-dimensional wire as the netlist built it; a missing second width
// counts as 1.
std::string VhdlFileWriter::twoDimensionalProcedureText() const {
  std::string text = "\ttype STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;\n\n";
  const NetlistWire* sized = nullptr;
  for (const NetlistWire& wire : netlist_.wires()) {
    if (!wire.rowsWidth.isZero()) sized = &wire;
  }
  if (sized == nullptr) return text;
  const long long rows = vhdlIntegerOf(sized->rowsWidth);
  const long long columns = sized->bitsWidth.isZero() ? 1 : vhdlIntegerOf(sized->bitsWidth);
  appendFormatted(
      text,
      "\tprocedure conv_2_2d(signal signal_in\t: IN std_logic_vector(%s DOWNTO %s);\n\t\t\t\t\t\tsignal "
      "signal_out\t: OUT std_logic_2d(%s DOWNTO %s, %s DOWNTO %s)) IS\n",
      formatInt(rows * columns - 1).c_str(), "0", formatInt(rows - 1).c_str(), "0",
      formatInt(columns - 1).c_str(), "0");
  appendFormatted(
      text,
      "\tBEGIN\n\t\tFOR i IN %s TO %s LOOP\n\t\t\tFOR j IN %s TO %s LOOP\n\t\t\t\tsignal_out(i, j) <= "
      "signal_in(i * %s + j);\n\t\t\tEND LOOP;\n\t\tEND LOOP;\n\tEND conv_2_2d;\n\n",
      "0", formatInt(rows - 1).c_str(), "0", formatInt(columns - 1).c_str(), formatInt(columns).c_str());
  return text;
}

}  // namespace plovix
