// The C entries for pictures: a .sym file or text in memory, handed back as SVG text.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "SymFormat.h"
#include "SymSvg.h"
#include "plovix_host.h"

namespace {

bool readWholeFile(const char* path, std::string& text, int& errorNumber) {
  errno = 0;
  std::FILE* file = std::fopen(path, "rb");
  if (file == nullptr) {
    errorNumber = errno != 0 ? errno : ENOENT;
    return false;
  }
  char buffer[65536];
  size_t count;
  while ((count = std::fread(buffer, 1, sizeof buffer, file)) > 0) text.append(buffer, count);
  const bool failed = std::ferror(file) != 0;
  if (failed) errorNumber = errno != 0 ? errno : EIO;
  std::fclose(file);
  return !failed;
}

}  // namespace

extern "C" int sym_render_svg_text(const char* text, size_t size, char** svg, int* errorLine) {
  if (svg != nullptr) *svg = nullptr;
  if (errorLine != nullptr) *errorLine = 0;
  if (text == nullptr || svg == nullptr) return 0;
  plovix::gio::Drawing drawing;
  int badLine = 0;
  if (!plovix::sym::parseSymText(std::string(text, size), drawing, badLine)) {
    if (errorLine != nullptr) *errorLine = badLine;
    return 0;
  }
  const std::string picture = plovix::sym::renderSvg(drawing);
  char* copy = static_cast<char*>(std::malloc(picture.size() + 1));
  if (copy == nullptr) return 0;
  std::memcpy(copy, picture.c_str(), picture.size() + 1);
  *svg = copy;
  return 1;
}

extern "C" int sym_render_svg(const char* symPath, char** svg, int* errorNumber, int* errorLine) {
  if (svg != nullptr) *svg = nullptr;
  if (errorNumber != nullptr) *errorNumber = 0;
  if (errorLine != nullptr) *errorLine = 0;
  if (symPath == nullptr || svg == nullptr) return 0;
  std::string text;
  int readError = 0;
  if (!readWholeFile(symPath, text, readError)) {
    if (errorNumber != nullptr) *errorNumber = readError;
    return 0;
  }
  if (sym_render_svg_text(text.data(), text.size(), svg, errorLine) != 0) return 1;
  if (errorNumber != nullptr && (errorLine == nullptr || *errorLine == 0)) *errorNumber = ENOMEM;
  return 0;
}

extern "C" void sym_free_text(char* text) {
  std::free(text);
}
