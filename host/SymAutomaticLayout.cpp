// Telling a symbol file laid out by the automatic symbol from one a plug-in drew element by element.
#include <cstdio>
#include <string>
#include <variant>

#include "SymFormat.h"
#include "plovix_host.h"

namespace {

using plovix::gio::LineBody;
using plovix::gio::Record;
using plovix::gio::TextBody;

const TextBody* textOf(const Record& record) {
  return std::get_if<TextBody>(&record.body);
}

bool isLine(const Record& record) {
  return std::holds_alternative<LineBody>(record.body);
}

// The record sequence the automatic layout writes (host/GioAutoSymbol.cpp): the name (text type 19), the
// four sides of the box, a stub line and its pin text for every pin, and at most one parameter block (text
// type 55) at the end. Values inside the records do not matter.
bool hasAutomaticSequence(const std::vector<Record>& records) {
  size_t at = 0;
  const auto textAt = [&](size_t i) { return i < records.size() ? textOf(records[i]) : nullptr; };
  const TextBody* name = textAt(at++);
  if (name == nullptr || name->textType != GIO_MACRO_TEXT) return false;
  for (int side = 0; side < 4; ++side, ++at)
    if (at >= records.size() || !isLine(records[at])) return false;
  while (at + 1 < records.size() && isLine(records[at])) {
    const TextBody* pin = textAt(at + 1);
    if (pin == nullptr || !pin->isPin) return false;
    at += 2;
  }
  if (at == records.size()) return true;
  const TextBody* parameters = textAt(at);
  return at + 1 == records.size() && parameters != nullptr && parameters->textType == GIO_NEW_PROP_TEXT;
}

}  // namespace

extern "C" int sym_has_automatic_layout(const char* symPath) {
  if (symPath == nullptr) return 0;
  std::FILE* file = std::fopen(symPath, "rb");
  if (file == nullptr) return 0;
  std::string text;
  char buffer[65536];
  size_t count = 0;
  while ((count = std::fread(buffer, 1, sizeof buffer, file)) > 0) text.append(buffer, count);
  const bool readFailed = std::ferror(file) != 0;
  std::fclose(file);
  plovix::gio::Drawing drawing;
  int badLine = 0;
  if (readFailed || !plovix::sym::parseSymText(text, drawing, badLine)) return 0;
  return hasAutomaticSequence(drawing.records()) ? 1 : 0;
}
