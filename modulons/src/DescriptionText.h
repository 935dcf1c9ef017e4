// Builds the text of a CNX description line by line, in the order the statements are added.
#pragma once

#include <string>

namespace plovix::wizard {

// The bound quadruple of a port or connection end: widths and low indices of two dimensions; a width of 0
// means the dimension is absent (a bus uses the second dimension only).
struct Bounds {
  long long width1 = 0, low1 = 0, width2 = 0, low2 = 0;
  static Bounds bit() { return {}; }
  static Bounds bus(long long width) { return {0, 0, width, 0}; }
  static Bounds rows(long long rowCount, long long width) { return {rowCount, 0, width, 0}; }
};

class DescriptionText {
 public:
  // Starts the description with its generation and version lines.
  explicit DescriptionText(bool symbolOnly = false);

  void library(const std::string& name, const std::string& use);
  void module(const std::string& moduleName, const std::string& instanceName = "");
  void privateValue(const std::string& name, const std::string& type, const std::string& value);
  void numericConstant(const std::string& name, long long value, const std::string& target = "");
  void stringConstant(const std::string& name, const std::string& value, const std::string& target = "");
  void stringParameter(const std::string& name, const std::string& value, const std::string& target);
  // direction "INPUT", "OUTPUT" or "BIDIR"; defaultValue "NODEFVAL", "GND" or "VCC".
  void usedPort(const std::string& name, Bounds bounds, const std::string& direction,
                const std::string& defaultValue = "NODEFVAL");
  // driven is fed by driver; a driver may be a constant (VCC, GND, a number) and may start with "!".
  void connect(const std::string& driven, Bounds drivenBounds, const std::string& driver,
               Bounds driverBounds);
  // A variation port wired straight to the main module's port of the same name: an input feeding it, an
  // output fed by it.
  void passedInput(const std::string& name, Bounds bounds, const std::string& defaultValue = "NODEFVAL");
  void passedOutput(const std::string& name, Bounds bounds);
  // One SYMBOL: statement; the text after the keyword as written.
  void symbol(const std::string& element);

  const std::string& text() const { return text_; }

 private:
  void line(const std::string& statement);
  std::string text_;
};

// "q[7..0]" for a bus, "m[3..0][7..0]" for rows of a bus, the name alone for one bit.
std::string pinText(const std::string& name, Bounds bounds);

}  // namespace plovix::wizard
