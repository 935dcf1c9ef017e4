// Choosing and making the front end from the configuration (PLOVIX_UI and friends, or plovix options).
#pragma once

#include <memory>
#include <string>

#include "ui/FrontEnd.h"

namespace plovix {

enum class FrontEndKind { kAutomatic, kBatch, kConsole, kQt };

struct FrontEndOptions {
  FrontEndKind kind = FrontEndKind::kAutomatic;
  std::string modulon;   // batch: the modulon chosen on the pages
  std::string language;  // batch: an output kind's CLI word
  bool answerOk = true;  // batch: the answer to every question
  // Started by the plovix command, not by a host of libvamlet.so: the console then ends the process on
  // Ctrl-C with status 130.
  bool startedByCommand = false;
  bool force = false;  // batch: questions that replace a file no wizard generated are answered too
};

// The options as the environment sets them.
FrontEndOptions frontEndOptionsFromEnvironment();

// Parses a PLOVIX_UI / --ui value; false when it is none of batch, console, qt.
bool parseFrontEndKind(const std::string& text, FrontEndKind& kind);

// The first of PLOVIX_UI, PLOVIX_ANSWER, PLOVIX_LANGUAGE and PLOVIX_HDL_TEXT that is set to a value it does
// not take (case ignored), as the usage error that names it and its values; empty when they are all valid. An
// option that overrides the variable does not make a bad value good.
std::string invalidFrontEndSetting();

// The front end of the options' kind; automatic means Qt when a display is there and the Qt module is
// installed, else console when standard input is a terminal, else batch. Qt asked for where it cannot be used
// falls back to console or batch with a note on standard error.
std::unique_ptr<FrontEnd> makeFrontEnd(const FrontEndOptions& options);

}  // namespace plovix
