// The retrieval info: the CNX statements a design file carries as comment lines after its design text, and,
// in edit mode, the CNX file rebuilt from a variation file or from a CNX file left by an earlier run.
#pragma once

#include <string>
#include <string_view>

#include "base/UserInterface.h"
#include "cnx/CnxDescription.h"

namespace plovix {

// The block appended to a design file whose comments start with `commentLeader`: a banner, then one
// "Retrieval info:" line per retrieved statement of the description.
std::string retrievalInfoText(const CnxDescription& description, std::string_view commentLeader);

// The CNX text rebuilt from the text of a variation file whose comments start with `commentLeader`: its
// version line, module lines and retrieved statements. A file whose header is not a standard generation
// gives nothing, one without a known version says so.
struct RebuiltCnx {
  enum class State { kNotStandard, kUnknownVersion, kRebuilt };
  State state = State::kNotStandard;
  std::string text;
  bool moduleFound = false;
};
RebuiltCnx rebuildCnxText(UserInterface& ui, std::string_view text, const std::string& commentLeader);

// Edit mode: rebuilds the CNX file beside a variation file (same directory and base name, ".cnx") from the
// file's header and retrieval info. False, without a message, for a file without the wizard signature.
bool extractRetrievalInfo(UserInterface& ui, const std::string& variationPath);

// Edit mode: removes a valid generation line from the start of a CNX file; a file that does not start with
// one is left as it is.
bool stripGenerationLine(UserInterface& ui, const std::string& cnxFilePath);

}  // namespace plovix
