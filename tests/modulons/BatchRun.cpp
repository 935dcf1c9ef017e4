// Running commands for the end-to-end tests.
#include "BatchRun.h"

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>

namespace plovix::testing {

std::string quoted(const std::string& word) {
  std::string out = "'";
  for (char c : word) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

CommandResult runIn(const std::string& directory, const std::string& command) {
  const std::string full = "cd " + quoted(directory) + " && (" + command + ") </dev/null 2>&1";
  CommandResult result;
  FILE* pipe = popen(full.c_str(), "r");
  if (pipe == nullptr) return result;
  char buffer[4096];
  for (size_t got; (got = fread(buffer, 1, sizeof buffer, pipe)) > 0;) result.output.append(buffer, got);
  const int status = pclose(pipe);
  result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return result;
}

bool haveProgram(const std::string& name) {
  return std::system(("command -v " + quoted(name) + " >/dev/null 2>&1").c_str()) == 0;
}

std::string modulonLibrary() {
  return std::string(PLOVIX_BINARY_DIR) + "/modulons/lib";
}

CommandResult plovixBatch(const TempDir& project, const std::string& modulon, const std::string& language,
                          const std::string& pluginArgs, const std::string& designFile) {
  std::string command =
      "env -u PLOVIX_LIB_PATH -u PLOVIX_USER_LIB_PATH -u PLOVIX_MODULON -u PLOVIX_LANGUAGE -u PLOVIX_ANSWER "
      "-u PLOVIX_UI -u DISPLAY -u WAYLAND_DISPLAY " +
      quoted(std::string(PLOVIX_BINARY_DIR) + "/cli/plovix") + " --batch --project " + quoted(project.dir());
  if (!modulon.empty()) command += " --modulon " + quoted(modulon);
  if (!language.empty()) command += " --language " + quoted(language);
  if (!pluginArgs.empty()) command += " --plugin-args " + quoted(pluginArgs);
  command += " " + quoted(designFile);
  return runIn(project.dir(), command);
}

}  // namespace plovix::testing
