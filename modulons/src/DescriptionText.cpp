// The statements of a CNX description as the plug-in writes them.
#include "DescriptionText.h"

namespace plovix::wizard {

namespace {

std::string boundsText(Bounds b) {
  return std::to_string(b.width1) + " " + std::to_string(b.low1) + " " + std::to_string(b.width2) + " " +
         std::to_string(b.low2);
}

std::string quoted(const std::string& value) {
  return "\"" + value + "\"";
}

std::string rangeText(long long width, long long low) {
  return width == 0 ? "" : "[" + std::to_string(low + width - 1) + ".." + std::to_string(low) + "]";
}

}  // namespace

DescriptionText::DescriptionText(bool symbolOnly) {
  line(std::string("GENERATION: ") + (symbolOnly ? "SYMBOL_ONLY" : "STANDARD"));
  line("VERSION: WM1.0");
}

void DescriptionText::library(const std::string& name, const std::string& use) {
  line("LIBRARY: " + name + " " + use);
}

void DescriptionText::module(const std::string& moduleName, const std::string& instanceName) {
  line("MODULE: " + moduleName + (instanceName.empty() ? "" : " " + instanceName));
}

void DescriptionText::privateValue(const std::string& name, const std::string& type,
                                   const std::string& value) {
  line("PRIVATE: " + name + " " + type + " " + quoted(value));
}

void DescriptionText::numericConstant(const std::string& name, long long value, const std::string& target) {
  line("CONSTANT: " + name + " NUMERIC " + std::to_string(value) + (target.empty() ? "" : " " + target));
}

void DescriptionText::stringConstant(const std::string& name, const std::string& value,
                                     const std::string& target) {
  line("CONSTANT: " + name + " STRING " + quoted(value) + (target.empty() ? "" : " " + target));
}

void DescriptionText::stringParameter(const std::string& name, const std::string& value,
                                      const std::string& target) {
  line("PARAMETER: " + name + " STRING " + quoted(value) + " " + target);
}

void DescriptionText::usedPort(const std::string& name, Bounds bounds, const std::string& direction,
                               const std::string& defaultValue) {
  line("USED_PORT: " + name + " " + boundsText(bounds) + " " + direction + " " + defaultValue + " " +
       quoted(pinText(name, bounds)));
}

void DescriptionText::connect(const std::string& driven, Bounds drivenBounds, const std::string& driver,
                              Bounds driverBounds) {
  line("CONNECT: " + driven + " " + boundsText(drivenBounds) + " " + driver + " " + boundsText(driverBounds));
}

void DescriptionText::passedInput(const std::string& name, Bounds bounds, const std::string& defaultValue) {
  usedPort(name, bounds, "INPUT", defaultValue);
  connect("@" + name, bounds, name, bounds);
}

void DescriptionText::passedOutput(const std::string& name, Bounds bounds) {
  usedPort(name, bounds, "OUTPUT");
  connect(name, bounds, "@" + name, bounds);
}

void DescriptionText::symbol(const std::string& element) {
  line("SYMBOL: " + element);
}

void DescriptionText::line(const std::string& statement) {
  text_ += statement + "\n";
}

std::string pinText(const std::string& name, Bounds bounds) {
  return name + rangeText(bounds.width1, bounds.low1) + rangeText(bounds.width2, bounds.low2);
}

}  // namespace plovix::wizard
