// The variation's graphic symbol, generated from the ports or drawn from the description's symbol elements.
#pragma once

#include <string>

#include "base/UserInterface.h"
#include "cnx/CnxDescription.h"

namespace plovix {

class SymbolBuilder {
 public:
  // `basePath` is the output directory followed by the variation's base name; the symbol is basePath +
  // ".sym".
  SymbolBuilder(UserInterface& ui, std::string basePath, const CnxDescription& description);

  // Builds the symbol through the drawing library, which writes the file; whether the library reports the
  // file written. The drawing library's failures are not shown to the user here: writeError says why the
  // file was not written, for the caller to report.
  bool buildSymbol();

  // The errno value the drawing library left when it did not write the file (0 when it gave none).
  int writeError() const { return writeError_; }

 private:
  bool buildAutomaticSymbol(const std::string& fileName);
  bool buildDrawnSymbol(const std::string& fileName);
  // Keeps a newly made instance unless the drawing library reported an error while making it.
  void keepInstance(short made, int errorCode);

  void drawElement(const SymbolElement& element);
  void drawLine(const SymbolLine& line);
  void drawSegment(int a, int b, int c, int d, const SymbolLine& look);
  void drawArc(const SymbolArc& arc);
  void drawCircle(const SymbolCircle& circle);
  // The text routine: one text record, connected; returns its record handle.
  short drawText(const SymbolText& text);
  void drawPinStub(const SymbolPinStub& stub);
  void drawParameterBlock(const SymbolParameter& parameter);
  void drawBox(const SymbolBox& box);

  [[maybe_unused]] UserInterface& ui_;
  std::string basePath_;
  const CnxDescription& description_;
  short instance_ = 0;  // the drawing library's instance, 0 when none
  int writeError_ = 0;
};

}  // namespace plovix
