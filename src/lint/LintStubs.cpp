// Sub-module stand-ins from a VHDL component declaration or a Verilog instance.
#include "lint/LintStubs.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <set>
#include <string_view>

#include "base/Format.h"
#include "base/TextFile.h"
#include "base/TextHelpers.h"

namespace plovix {

namespace {

bool named(const std::vector<std::string>& names, const std::string& name) {
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string& n) { return equalsIgnoringCase(n, name); });
}

bool isWordCharacter(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

void skipBlanks(std::string_view text, size_t& at) {
  while (at < text.size() && std::isspace(static_cast<unsigned char>(text[at])) != 0) ++at;
}

// The identifier at `at` (after blanks); empty when there is none.
std::string readWord(std::string_view text, size_t& at) {
  skipBlanks(text, at);
  const size_t start = at;
  while (at < text.size() && isWordCharacter(text[at])) ++at;
  return std::string(text.substr(start, at - start));
}

// The position of `word` as a whole word in `lowered` from `from` on; npos when it is not there.
size_t findWord(const std::string& lowered, std::string_view word, size_t from) {
  for (size_t at = lowered.find(word, from); at != std::string::npos; at = lowered.find(word, at + 1)) {
    const bool before = at == 0 || !isWordCharacter(lowered[at - 1]);
    const bool after = at + word.size() >= lowered.size() || !isWordCharacter(lowered[at + word.size()]);
    if (before && after) return at;
  }
  return std::string::npos;
}

// The LIBRARY and USE lines of a VHDL design text, up to its first ENTITY.
std::string contextClause(const std::string& designText) {
  std::string clause;
  for (const std::string& line : splitLines(designText)) {
    std::string rest = line;
    const std::string word = toLowerText(splitFirstToken(rest, " \t"));
    if (word == "entity") break;
    if (word == "library" || word == "use") clause += line + "\n";
  }
  return clause;
}

// The pieces of `text` between top-level separators (outside parentheses, brackets and braces), trimmed.
std::vector<std::string> splitTopLevel(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  int depth = 0;
  size_t start = 0;
  for (size_t i = 0; i <= text.size(); ++i) {
    const char c = i < text.size() ? text[i] : separator;
    if (c == '(' || c == '[' || c == '{') ++depth;
    if ((c == ')' || c == ']' || c == '}') && depth > 0) --depth;
    if (c == separator && (depth == 0 || i == text.size())) {
      pieces.push_back(trimText(text.substr(start, i - start)));
      start = i + 1;
    }
  }
  return pieces;
}

// The count of bits of the ranges "[7:0][3:0]" that start at `at` (blanks allowed between them); 1 when
// there are none. A bound that is not a number counts as 0; a range is at most 2^20 bits.
long long readRanges(std::string_view text, size_t& at) {
  long long bits = 1;
  for (skipBlanks(text, at); at < text.size() && text[at] == '['; skipBlanks(text, at)) {
    const size_t close = text.find(']', at);
    if (close == std::string_view::npos) break;
    std::string inside(text.substr(at + 1, close - at - 1));
    const size_t colon = inside.find(':');
    if (colon != std::string::npos) {
      const long long high = atoiText(inside.substr(0, colon));
      const long long low = atoiText(inside.substr(colon + 1));
      bits *= std::min(std::llabs(high - low) + 1, 1LL << 20);
    }
    at = close + 1;
  }
  return bits;
}

struct Net {
  long long bits = 1;
  bool driven = false;
};

// The nets a Verilog design declares: ports and wires with their widths, and whether something drives them
// in the design itself (an input port, a wire with a value, an assign).
std::map<std::string, Net> verilogNets(const std::string& text) {
  std::map<std::string, Net> nets;
  for (const std::string& statement : splitTopLevel(text, ';')) {
    size_t at = 0;
    const std::string kind = readWord(statement, at);
    if (kind == "assign") {
      nets[readWord(statement, at)].driven = true;
    } else if (kind == "input" || kind == "output" || kind == "inout" || kind == "wire" || kind == "reg") {
      const long long bits = readRanges(statement, at);
      const std::string name = readWord(statement, at);
      if (name.empty()) continue;
      skipBlanks(statement, at);
      Net& net = nets[name];
      net.bits = bits;
      net.driven = net.driven || kind == "input" || (at < statement.size() && statement[at] == '=');
    }
  }
  return nets;
}

// The width of a connection expression: a net, a part of one, a sized number, or a concatenation of them.
long long expressionBits(std::string_view expression, const std::map<std::string, Net>& nets) {
  std::string_view inner = expression;
  if (inner.size() >= 2 && inner.front() == '{' && inner.back() == '}')
    inner = inner.substr(1, inner.size() - 2);
  long long bits = 0;
  for (const std::string& item : splitTopLevel(inner, ',')) {
    size_t at = 0;
    const size_t tick = item.find('\'');
    if (tick != std::string::npos) {
      bits += std::clamp(atoiText(item.substr(0, tick)), 1LL, 1LL << 20);
      continue;
    }
    const std::string name = readWord(item, at);
    skipBlanks(item, at);
    if (at < item.size() && item[at] == '[') {
      bits += item.find(':', at) == std::string::npos ? 1 : readRanges(item, at);
    } else {
      const auto net = nets.find(name);
      bits += net == nets.end() ? 1 : net->second.bits;
    }
  }
  return std::max(bits, 1LL);
}

// A Verilog text with its comments blanked out (line ends kept).
std::string withoutComments(const std::string& text) {
  std::string out = text;
  for (size_t i = 0; i + 1 < out.size(); ++i) {
    if (out[i] == '"') {
      for (++i; i < out.size() && out[i] != '"' && out[i] != '\n'; ++i)
        if (out[i] == '\\') ++i;
    } else if (out[i] == '/' && (out[i + 1] == '/' || out[i + 1] == '*')) {
      const bool line = out[i + 1] == '/';
      const size_t end = line ? out.find('\n', i) : out.find("*/", i + 2);
      const size_t stop = end == std::string::npos ? out.size() : end + (line ? 0 : 2);
      for (size_t j = i; j < stop; ++j)
        if (out[j] != '\n') out[j] = ' ';
      i = stop > 0 ? stop - 1 : 0;
    }
  }
  return out;
}

// One instance of a Verilog design: "MODULE INSTANCE ( .PORT (EXPRESSION), ... )".
struct Instance {
  std::string module, name;
  std::vector<std::pair<std::string, std::string>> ports;  // name, connected expression
};

bool readInstance(const std::string& statement, Instance& instance) {
  size_t at = 0;
  instance.module = readWord(statement, at);
  instance.name = readWord(statement, at);
  skipBlanks(statement, at);
  if (instance.module.empty() || instance.name.empty() || at >= statement.size() || statement[at] != '(' ||
      statement.back() != ')')
    return false;
  for (const std::string& item :
       splitTopLevel(std::string_view(statement).substr(at + 1, statement.size() - at - 2), ',')) {
    size_t i = 0;
    skipBlanks(item, i);
    if (i >= item.size() || item[i] != '.') return false;
    ++i;
    const std::string port = readWord(item, i);
    skipBlanks(item, i);
    if (port.empty() || i >= item.size() || item[i] != '(' || item.back() != ')') return false;
    instance.ports.emplace_back(port, trimText(item.substr(i + 1, item.size() - i - 2)));
  }
  return !instance.ports.empty();
}

}  // namespace

std::vector<std::string> variationModules(const std::string& designText) {
  std::vector<std::string> names;
  for (const std::string& line : splitLines(designText)) {
    std::string rest = line;
    const std::string leader = splitFirstToken(rest, " \t");
    const std::string keyword = splitFirstToken(rest, " \t");
    const std::string name = splitFirstToken(rest, " \t");
    if ((leader == "--" || leader == "//") && keyword == "MODULE:" && !name.empty() && !named(names, name))
      names.push_back(name);
  }
  return names;
}

std::vector<LintStub> vhdlStubs(const std::string& designText, const std::string& declarations,
                                const std::vector<std::string>& names) {
  std::vector<LintStub> stubs;
  const std::string context = contextClause(designText);
  const std::string lowered = toLowerText(declarations);
  for (size_t at = findWord(lowered, "component", 0); at != std::string::npos;
       at = findWord(lowered, "component", at + 1)) {
    // "END COMPONENT" closes a declaration; it opens none.
    size_t before = at;
    while (before > 0 && std::isspace(static_cast<unsigned char>(lowered[before - 1])) != 0) --before;
    if (before >= 3 && lowered.compare(before - 3, 3, "end") == 0) continue;
    size_t cursor = at + std::string_view("component").size();
    const std::string name = readWord(declarations, cursor);
    size_t body = cursor;
    if (readWord(lowered, body) != "is") body = cursor;
    size_t end = findWord(lowered, "end", body);
    while (end != std::string::npos) {
      size_t next = end + 3;
      if (readWord(lowered, next) == "component") break;
      end = findWord(lowered, "end", end + 1);
    }
    if (name.empty() || end == std::string::npos || !named(names, name)) continue;
    const std::string interface = declarations.substr(body, end - body);
    stubs.push_back(
        {name, formatText("%sENTITY %s IS\n%s\nEND %s;\n\nARCHITECTURE stub OF %s IS\nBEGIN\nEND stub;\n",
                          context.c_str(), name.c_str(), interface.c_str(), name.c_str(), name.c_str())});
  }
  return stubs;
}

std::vector<LintStub> verilogStubs(const std::string& text, const std::vector<std::string>& names) {
  const std::string designText = withoutComments(text);
  const std::map<std::string, Net> nets = verilogNets(designText);
  const std::vector<std::string> statements = splitTopLevel(designText, ';');
  std::map<std::string, std::set<std::string>> parameters;  // instance -> parameter names
  for (const std::string& statement : statements) {
    size_t at = 0;
    if (readWord(statement, at) != "defparam") continue;
    for (const std::string& item : splitTopLevel(std::string_view(statement).substr(at), ',')) {
      const std::string target = trimText(item.substr(0, item.find('=')));
      const size_t dot = target.rfind('.');
      if (dot != std::string::npos) parameters[target.substr(0, dot)].insert(target.substr(dot + 1));
    }
  }
  std::vector<LintStub> stubs;
  for (const std::string& statement : statements) {
    Instance instance;
    if (!readInstance(statement, instance) || !named(names, instance.module) ||
        std::any_of(stubs.begin(), stubs.end(), [&](const LintStub& s) { return s.name == instance.module; }))
      continue;
    std::string portNames, declarations;
    for (const auto& [port, expression] : instance.ports) {
      const auto net = nets.find(expression);
      const bool output = net != nets.end() && !net->second.driven;
      const long long bits = expressionBits(expression, nets);
      portNames += (portNames.empty() ? "" : ", ") + port;
      declarations += formatText("\t%s %s%s;\n", output ? "output" : "input",
                                 bits > 1 ? formatText("[%lld:0] ", bits - 1).c_str() : "", port.c_str());
    }
    for (const std::string& name : parameters[instance.name])
      declarations += formatText("\tparameter %s = 0;\n", name.c_str());
    stubs.push_back({instance.module, formatText("module %s (%s);\n%sendmodule\n", instance.module.c_str(),
                                                 portNames.c_str(), declarations.c_str())});
  }
  return stubs;
}

}  // namespace plovix
