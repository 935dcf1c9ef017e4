// The check before a run or a listing that there is a modulon library at all.
#include <cstdlib>
#include <string>

#include "Subcommands.h"
#include "base/HostQueries.h"
#include "base/Report.h"
#include "plovix_host.h"

namespace plovix {

bool modulonLibraryFound(UserInterface& ui) {
  // A library path the user gives is used as given, even an empty one.
  if (std::getenv("PLOVIX_LIB_PATH") != nullptr || ge_get_qelvix_lib_path() != nullptr) return true;
  if (!libraryPath(true).empty()) return true;
  std::string places = ge_get_bundled_lib_candidates();
  for (size_t at = places.find(';'); at != std::string::npos; at = places.find(';', at))
    places.replace(at, 1, ", ");
  reportError(ui, Msg::kNoModulonLibrary, places);
  return false;
}

}  // namespace plovix
