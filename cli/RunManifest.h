// The JSON object a batch run prints with --json (docs/json-output.md describes it).
#pragma once

#include <string>
#include <vector>

#include "base/Json.h"
#include "base/RunOutcome.h"
#include "ui/BatchFrontEnd.h"

namespace plovix {

// The run's status word, exit status, design file, the files written and not written, every box and hint
// shown, and the warnings.
JsonValue runManifest(const std::string& designFile, const RunOutcome& outcome, int exitStatus,
                      const std::vector<BatchBox>& boxes);

// Prints a JSON value on standard output as one line; false when it could not be written.
bool printJson(const JsonValue& value);

// The manifest of a command line that was not understood: status "usage-error", exit status 2.
void printUsageErrorManifest(const std::string& message);

}  // namespace plovix
