// Implementation of the output kinds, the name rules, the signature reader and the THDL fallback question.
#include "base/OutputKinds.h"

#include <cstdio>

#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "base/TextHelpers.h"

namespace plovix {

bool isOutputExtension(std::string_view extension) {
  return outputKindOfExtension(extension) != nullptr;
}

const OutputKind* outputKindOfExtension(std::string_view extension) {
  for (const OutputKind& kind : kOutputKinds) {
    if (kind.designExtension == extension) return &kind;
  }
  return nullptr;
}

const OutputKind* outputKindOfCliWord(std::string_view word) {
  for (const OutputKind& kind : kOutputKinds) {
    if (kind.cliWord == word) return &kind;
  }
  return nullptr;
}

const OutputKind* outputKindOfButton(int buttonIndex) {
  for (const OutputKind& kind : kOutputKinds) {
    if (kind.buttonIndex == buttonIndex) return &kind;
  }
  return nullptr;
}

int outputKindIndexOfExtension(std::string_view extension) {
  const OutputKind* kind = outputKindOfExtension(extension);
  return kind == nullptr ? -1 : static_cast<int>(kind - kOutputKinds.data());
}

std::string extensionOfKind(std::string_view key) {
  const std::string trimmed = trimText(key);
  for (const OutputKind& kind : kOutputKinds) {
    if (kind.key == trimmed) return std::string(kind.designExtension);
  }
  return {};
}

std::string commentLeaderOfExtension(std::string_view extension) {
  const std::string trimmed = trimText(extension);
  for (const OutputKind& kind : kOutputKinds) {
    if (kind.designExtension == trimmed) return std::string(kind.commentLeader);
  }
  return {};
}

bool isDesignExtension(std::string_view extension) {
  return isOutputExtension(extension) || extension == kGraphicDesignExtension;
}

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

bool isIn(std::string_view set, char c) {
  return set.find(c) != std::string_view::npos;
}

}  // namespace

bool checkOutputFileName(UserInterface& ui, std::string_view extension, std::string_view baseName) {
  const OutputKind* kind = outputKindOfExtension(extension);
  if (kind == nullptr) return true;
  const OutputNameRule& rule = kind->nameRule;
  for (char c : baseName) {
    const bool allowed = isIn(kDigits, c) || isIn(kLetters, c) || c == '_' || (rule.tilde && c == '~');
    if (!allowed) {
      reportError(ui, rule.message);
      return false;
    }
  }
  if (rule.letterFirst) {
    const bool ok = !baseName.empty() &&
                    (isIn(kLetters, baseName.front()) || (rule.underscoreFirst && baseName.front() == '_'));
    if (!ok) {
      reportError(ui, rule.message);
      return false;
    }
  }
  return true;
}

std::string readModulonNameOfFile(const std::string& path) {
  std::string result(kNotWizardMarker);
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return result;
  std::string line;
  int c = 0;
  while ((c = std::fgetc(file)) != EOF && c != '\n') line += static_cast<char>(c);
  std::fclose(file);
  if (!line.empty() && line.back() == '\r') line.pop_back();
  const size_t at = line.find(kSignatureText);
  if (at != std::string::npos) {
    const size_t start = at + kSignatureText.size() + 1;
    std::string rest = start < line.size() ? line.substr(start) : std::string();
    result = splitFirstToken(rest, "%");
  }
  return result;
}

bool offerThdlFallback(UserInterface& ui, std::string& extension) {
  const OutputKind* kind = outputKindOfExtension(extension);
  if (kind == nullptr || kind->language == OutputLanguage::kThdl) return true;
  const bool ok = ui.ask(questions::thdlFallback());
  extension = outputKind(OutputLanguage::kThdl).designExtension;
  return ok;
}

}  // namespace plovix
