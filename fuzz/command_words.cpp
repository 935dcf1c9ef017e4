// Fuzzer of the command-line words: a command text and the values of its %-codes (the input cut at zero
// bytes: text, output path, native-copy path, modulon directory). Expanding inside the words never changes
// their number, and a value is always one whole word, whatever it holds.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "FuzzInterface.h"
#include "base/PathText.h"
#include "entry/CommandWords.h"
#include "platform/CommandLineWords.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<std::string> parts = plovix::fuzz::inputParts(data, size, '\0', 4);
  parts.resize(4);
  const plovix::CommandContext context{parts[1], parts[2], parts[3]};
  const std::vector<std::string> split = plovix::splitCommandLine(parts[0]);
  const std::vector<std::string> words = plovix::commandWords(context, parts[0]);
  if (words.size() != split.size()) std::abort();
  for (size_t i = 0; i < words.size(); ++i) {
    if (words[i] != plovix::expandCommandMacros(context, split[i])) std::abort();
  }
  const std::vector<std::string> path = plovix::commandWords(context, "-o%p");
  if (path.size() != 1 || path[0] != "-o" + plovix::toBackslashes(context.outputPath)) std::abort();
  return 0;
}
