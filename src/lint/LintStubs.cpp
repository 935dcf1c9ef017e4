// Sub-module stand-ins from a VHDL component declaration or a Verilog instance.
#include "lint/LintStubs.h"

#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "base/Format.h"
#include "base/TextFile.h"
#include "base/TextHelpers.h"

namespace plovix {

namespace {

bool named(const std::vector<std::string>& names, const std::string& name) {
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string& n) { return equalsIgnoringCase(n, name); });
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

// The count of bits of a range list "[7:0][3:0]"; 1 without ranges. Bounds that are not numbers count 1.
long long rangeBits(const std::string& ranges) {
  static const std::regex range(R"(\[\s*(-?\d+)\s*:\s*(-?\d+)\s*\])");
  long long bits = 1;
  for (auto it = std::sregex_iterator(ranges.begin(), ranges.end(), range); it != std::sregex_iterator();
       ++it) {
    const long long high = std::stoll((*it)[1].str().substr(0, 10));
    const long long low = std::stoll((*it)[2].str().substr(0, 10));
    bits *= std::min(std::llabs(high - low) + 1, 1LL << 20);
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
  static const std::regex declaration(
      R"(\b(input|output|inout|wire|reg)\s*((?:\[[^\]]*\]\s*)*)(\w+)\s*(=)?)");
  static const std::regex assignment(R"(\bassign\s+(\w+))");
  std::map<std::string, Net> nets;
  for (auto it = std::sregex_iterator(text.begin(), text.end(), declaration); it != std::sregex_iterator();
       ++it) {
    Net& net = nets[(*it)[3].str()];
    net.bits = rangeBits((*it)[2].str());
    net.driven = net.driven || (*it)[1].str() == "input" || (*it)[4].matched;
  }
  for (auto it = std::sregex_iterator(text.begin(), text.end(), assignment); it != std::sregex_iterator();
       ++it)
    nets[(*it)[1].str()].driven = true;
  return nets;
}

// The width of a connection expression: a net, a part of one, a sized number, or a concatenation of them.
long long expressionBits(const std::string& expression, const std::map<std::string, Net>& nets) {
  static const std::regex item(
      R"((\d+)\s*'\s*[sS]?[bBoOdDhH]\s*[0-9a-fA-FxXzZ_]+|(\w+)\s*((?:\[[^\]]*\])*))");
  long long bits = 0;
  for (auto it = std::sregex_iterator(expression.begin(), expression.end(), item);
       it != std::sregex_iterator(); ++it) {
    if ((*it)[1].matched) {
      bits += std::stoll((*it)[1].str().substr(0, 6));
      continue;
    }
    const std::string ranges = (*it)[3].str();
    if (ranges.find(':') != std::string::npos) {
      bits += rangeBits(ranges);
    } else if (!ranges.empty()) {
      bits += 1;
    } else {
      const auto net = nets.find((*it)[2].str());
      bits += net == nets.end() ? 1 : net->second.bits;
    }
  }
  return std::max(bits, 1LL);
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
  static const std::regex component(R"(\bcomponent\s+(\w+)\s+(?:is\s+)?([\s\S]*?)\bend\s+component\b)",
                                    std::regex::icase);
  std::vector<LintStub> stubs;
  const std::string context = contextClause(designText);
  for (auto it = std::sregex_iterator(declarations.begin(), declarations.end(), component);
       it != std::sregex_iterator(); ++it) {
    const std::string name = (*it)[1].str();
    if (!named(names, name)) continue;
    stubs.push_back(
        {name,
         formatText("%sENTITY %s IS\n%sEND %s;\n\nARCHITECTURE stub OF %s IS\nBEGIN\nEND stub;\n",
                    context.c_str(), name.c_str(), (*it)[2].str().c_str(), name.c_str(), name.c_str())});
  }
  return stubs;
}

std::vector<LintStub> verilogStubs(const std::string& designText, const std::vector<std::string>& names) {
  static const std::regex instance(R"(\b(\w+)\s+(\w+)\s*\(\s*\.)");
  static const std::regex port(R"(\.(\w+)\s*\(([^()]*)\))");
  static const std::regex parameter(R"(\b(\w+)\.(\w+)\s*=)");
  const std::map<std::string, Net> nets = verilogNets(designText);
  std::map<std::string, std::set<std::string>> parameters;  // instance -> parameter names
  for (auto it = std::sregex_iterator(designText.begin(), designText.end(), parameter);
       it != std::sregex_iterator(); ++it)
    parameters[(*it)[1].str()].insert((*it)[2].str());

  std::vector<LintStub> stubs;
  for (auto it = std::sregex_iterator(designText.begin(), designText.end(), instance);
       it != std::sregex_iterator(); ++it) {
    const std::string module = (*it)[1].str();
    if (!named(names, module) ||
        std::any_of(stubs.begin(), stubs.end(), [&](const LintStub& s) { return s.name == module; }))
      continue;
    const size_t start = static_cast<size_t>(it->position(0) + it->length(0)) - 1;
    const size_t end = designText.find(");", start);
    const std::string items =
        designText.substr(start, end == std::string::npos ? std::string::npos : end - start);
    std::string portNames, declarations;
    for (auto p = std::sregex_iterator(items.begin(), items.end(), port); p != std::sregex_iterator(); ++p) {
      const std::string expression = trimText((*p)[2].str());
      const auto net = nets.find(expression);
      const bool output = net != nets.end() && !net->second.driven;
      const long long bits = expressionBits(expression, nets);
      portNames += (portNames.empty() ? "" : ", ") + (*p)[1].str();
      declarations +=
          formatText("\t%s %s%s;\n", output ? "output" : "input",
                     bits > 1 ? formatText("[%lld:0] ", bits - 1).c_str() : "", (*p)[1].str().c_str());
    }
    for (const std::string& name : parameters[(*it)[2].str()])
      declarations += formatText("\tparameter %s = 0;\n", name.c_str());
    stubs.push_back({module, formatText("module %s (%s);\n%sendmodule\n", module.c_str(), portNames.c_str(),
                                        declarations.c_str())});
  }
  return stubs;
}

}  // namespace plovix
