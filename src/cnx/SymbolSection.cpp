// SYMBOL: lines: the element keyword, each element's operands, and the element records they produce.
#include "base/Messages.h"
#include "cnx/CnxStatements.h"

namespace plovix {

namespace {

// A keyword operand kept as text in the element record.
bool keywordInto(CnxOperands& in, std::string& out, std::initializer_list<std::string_view> allowed,
                 bool optional, Msg message) {
  std::string_view text;
  if (!in.keyword(text, allowed, optional, message)) return false;
  out = text;
  return true;
}

bool lineStyle(CnxOperands& in, std::string& out) {
  return keywordInto(in, out, {"DOTTED", "DENSE", "BROKEN", "DASHED", "BUS", "SOLID"}, true,
                     Msg::kCnxNoLineStyle);
}

bool lineWidth(CnxOperands& in, std::string& out) {
  return keywordInto(in, out, {"THICK", "THIN"}, true, Msg::kCnxNoLineWidth);
}

bool orientation(CnxOperands& in, std::string& out) {
  return keywordInto(in, out, {"HORIZ", "VERT"}, true, Msg::kCnxNoOrientation);
}

bool stubType(CnxOperands& in, std::string& out) {
  return keywordInto(in, out, {"IN", "OUT", "BIDIR"}, false, Msg::kCnxNoStubType);
}

bool logical(CnxOperands& in, bool& out) {
  std::string_view text;
  if (!in.keyword(text, {"TRUE", "FALSE"}, true, Msg::kCnxNoLogical)) return false;
  out = text == "TRUE";
  return true;
}

// LINE and RECT.
bool readLine(CnxOperands& in, bool isRect, SymbolElement& element) {
  SymbolLine line;
  line.isRect = isRect;
  if (!in.number(line.x1) || !in.number(line.y1) || !in.number(line.x2) || !in.number(line.y2)) return false;
  if (!lineStyle(in, line.style) || !lineWidth(in, line.width) || !in.endOfLine()) return false;
  element = {SymbolKind::kLine, std::move(line)};
  return true;
}

bool readArc(CnxOperands& in, SymbolElement& element) {
  SymbolArc arc;
  for (int32_t* field :
       {&arc.centerX, &arc.centerY, &arc.startX, &arc.startY, &arc.endX, &arc.endY, &arc.radius}) {
    if (!in.number(*field)) return false;
  }
  if (!in.endOfLine()) return false;
  element = {SymbolKind::kArc, arc};
  return true;
}

bool readCircle(CnxOperands& in, SymbolElement& element) {
  SymbolCircle circle;
  if (!in.number(circle.centerX) || !in.number(circle.centerY) || !in.number(circle.radius)) return false;
  if (!logical(in, circle.filled) || !in.endOfLine()) return false;
  element = {SymbolKind::kCircle, circle};
  return true;
}

bool readText(CnxOperands& in, SymbolElement& element) {
  SymbolText text;
  text.text = in.word();
  if (!in.number(text.x) || !in.number(text.y) || !orientation(in, text.orientation)) return false;
  text.font = in.word();
  if (!in.endOfLine()) return false;
  element = {SymbolKind::kText, std::move(text)};
  return true;
}

bool readPinStub(CnxOperands& in, SymbolElement& element) {
  SymbolPinStub stub;
  if (!in.number(stub.x) || !in.number(stub.y) || !stubType(in, stub.stubType)) return false;
  stub.pinName = in.word();
  if (!in.number(stub.textX) || !in.number(stub.textY)) return false;
  // An absent label repeats the pin name; the empty quoted label stays empty (the pin name is then hidden).
  if (in.take() || in.emptyQuoted()) {
    stub.label = in.token();
  } else {
    stub.label = stub.pinName;
  }
  if (!orientation(in, stub.orientation)) return false;
  stub.font = in.word();
  if (!in.endOfLine()) return false;
  element = {SymbolKind::kPinStub, std::move(stub)};
  return true;
}

bool readParameter(CnxOperands& in, SymbolElement& element) {
  SymbolParameter parameter;
  // Without its text the line is dropped without a log entry.
  if (!in.take()) return false;
  parameter.text = in.token();
  parameter.font = in.word();
  if (!in.endOfLine()) return false;
  element = {SymbolKind::kParameter, std::move(parameter)};
  return true;
}

bool readBox(CnxOperands& in, CnxBuild& out, SymbolElement& element) {
  // Any BOX line, even one that is dropped, asks for the drawn symbol instead of the generated one.
  out.description.defaultSymbolBox = false;
  SymbolBox box;
  for (int32_t* field : {&box.sheetWidth, &box.sheetHeight, &box.nameX, &box.nameY}) {
    if (!in.number(*field)) return false;
  }
  box.font = in.word();
  if (!in.endOfLine()) return false;
  element = {SymbolKind::kBox, std::move(box)};
  return true;
}

bool readElement(CnxOperands& in, CnxBuild& out, SymbolElement& element) {
  in.take();
  const std::string_view keyword = in.token();
  if (keyword == "LINE") return readLine(in, false, element);
  if (keyword == "RECT") return readLine(in, true, element);
  if (keyword == "ARC") return readArc(in, element);
  if (keyword == "CIRCLE") return readCircle(in, element);
  if (keyword == "TEXT") return readText(in, element);
  if (keyword == "PINSTUB") return readPinStub(in, element);
  if (keyword == "PARAMETER") return readParameter(in, element);
  if (keyword == "BOX") return readBox(in, out, element);
  return in.fail(Msg::kCnxUnknownSymbolElement);
}

}  // namespace

bool readSymbolStatement(CnxOperands& in, CnxBuild& out) {
  SymbolElement element;
  if (!readElement(in, out, element)) return false;
  out.description.symbolElements.push_back(std::move(element));
  return true;
}

}  // namespace plovix
