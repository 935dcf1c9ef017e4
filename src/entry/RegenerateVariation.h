// Generating a variation's files again from its design file alone, into another directory, with no plug-in.
#pragma once

#include <string>
#include <vector>

#include "base/UserInterface.h"
#include "entry/ManagerApp.h"

namespace plovix {

struct RegeneratedVariation {
  bool generated = false;
  std::vector<std::string> files;  // every file written into the directory, in the order written
  std::string errorLog;            // the CNX error log's entries when the rebuilt description was faulty
};

// Rebuilds the description of the variation whose design file is `designFile` from the file's header and
// retrieval info, as an edit run prepares it for the plug-in, reads it as the run reads the plug-in's
// description (mode STANDARD, the modulon the signature names), and writes every file of the variation into
// `directory` (an empty directory of its own, with its trailing "/") under the design file's name. Nothing is
// written beside `designFile`, no plug-in is started and no native-language copy is made. Questions go to
// `ui`; in an empty directory only the two-dimensional-port question can come. The work files are deleted.
RegeneratedVariation regenerateVariation(ManagerApp& app, UserInterface& ui, const std::string& designFile,
                                         const std::string& directory);

}  // namespace plovix
