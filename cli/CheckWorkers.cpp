// plovix --check over many variations: in this process, or spread over worker processes whose verdicts come
// back as JSON lines and are put back in the order of the files.
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "Check.h"
#include "base/FileSystem.h"
#include "base/Format.h"
#include "base/Json.h"
#include "base/Report.h"

namespace plovix {

namespace {

JsonValue fileToJson(const FileVerdict& file) {
  JsonValue json = JsonValue::object();
  json.add("path", JsonValue::ofString(file.path));
  json.add("state", JsonValue::ofInteger(static_cast<int>(file.state)));
  json.add("note", JsonValue::ofString(file.note));
  json.add("expected", JsonValue::ofString(file.expected));
  return json;
}

bool fileFromJson(const JsonValue& json, FileVerdict& file) {
  const JsonValue* path = json.member("path");
  const JsonValue* state = json.member("state");
  const JsonValue* note = json.member("note");
  const JsonValue* expected = json.member("expected");
  long long stateNumber = 0;
  if (path == nullptr || note == nullptr || expected == nullptr || state == nullptr ||
      !state->integer(stateNumber) || stateNumber < 0 ||
      stateNumber > static_cast<long long>(FileVerdict::State::kNotCompared))
    return false;
  file.path = path->text;
  file.state = static_cast<FileVerdict::State>(stateNumber);
  file.note = note->text;
  file.expected = expected->text;
  return true;
}

// Where scratch directories go: TMPDIR when it is set; else a file system in memory when there is one (the
// user's runtime directory, /dev/shm), since every variation writes and deletes a dozen small files there;
// else /tmp.
std::string scratchBase() {
  for (const std::string& base : {environmentVariable("TMPDIR"), environmentVariable("XDG_RUNTIME_DIR")}) {
    if (!base.empty()) return base;
  }
  return isDirectory("/dev/shm") && access("/dev/shm", W_OK | X_OK) == 0 ? "/dev/shm" : "/tmp";
}

// A scratch directory of this process, with its trailing "/"; empty when none can be made.
std::string makeScratchDirectory() {
  std::string pattern = scratchBase() + "/plovix-check-XXXXXX";
  if (mkdtemp(pattern.data()) == nullptr) return {};
  return pattern + "/";
}

void removeScratchDirectory(const std::string& scratch) {
  for (const DirectoryEntry& entry : listDirectory(scratch)) deleteFile(scratch + entry.name);
  rmdir(scratch.c_str());
}

bool writeAll(int fd, const std::string& text) {
  size_t done = 0;
  while (done < text.size()) {
    const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<size_t>(n);
  }
  return true;
}

// A worker: checks every `jobs`-th file from `first` on and writes "INDEX<tab>VERDICT" lines to `fd`.
[[noreturn]] void runWorker(const std::vector<std::string>& files, size_t first, size_t jobs,
                            bool keepExpected, int fd) {
  const std::string scratch = makeScratchDirectory();
  if (scratch.empty()) _exit(1);
  bool ok = true;
  for (size_t i = first; i < files.size() && ok; i += jobs)
    ok = writeAll(
        fd, formatText("%zu\t", i) + verdictToLine(checkVariation(files[i], scratch, keepExpected)) + "\n");
  removeScratchDirectory(scratch);
  close(fd);
  _exit(ok ? 0 : 1);
}

// Reads every worker's lines until all pipes are closed; the text of each pipe.
std::vector<std::string> readAllPipes(const std::vector<int>& fds) {
  std::vector<std::string> texts(fds.size());
  std::vector<bool> open(fds.size(), true);
  size_t stillOpen = fds.size();
  char buffer[65536];
  while (stillOpen > 0) {
    std::vector<pollfd> watch;
    std::vector<size_t> which;
    for (size_t k = 0; k < fds.size(); ++k) {
      if (!open[k]) continue;
      watch.push_back({fds[k], POLLIN, 0});
      which.push_back(k);
    }
    if (poll(watch.data(), watch.size(), -1) < 0) {
      if (errno == EINTR) continue;
      break;
    }
    for (size_t w = 0; w < watch.size(); ++w) {
      if (watch[w].revents == 0) continue;
      const size_t k = which[w];
      const ssize_t n = ::read(fds[k], buffer, sizeof buffer);
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) {
        open[k] = false;
        --stillOpen;
      } else {
        texts[k].append(buffer, static_cast<size_t>(n));
      }
    }
  }
  return texts;
}

// Files each verdict line of a worker's text at its index; false for a line that is not one.
bool fileVerdicts(const std::string& text, std::vector<VariationVerdict>& verdicts, std::vector<bool>& have) {
  size_t start = 0;
  while (start < text.size()) {
    const size_t end = text.find('\n', start);
    if (end == std::string::npos) return false;
    const size_t tab = text.find('\t', start);
    if (tab == std::string::npos || tab > end) return false;
    char* stop = nullptr;
    const unsigned long long index = std::strtoull(text.c_str() + start, &stop, 10);
    if (stop != text.c_str() + tab || index >= verdicts.size()) return false;
    if (!verdictFromLine(text.substr(tab + 1, end - tab - 1), verdicts[index])) return false;
    have[index] = true;
    start = end + 1;
  }
  return true;
}

}  // namespace

std::string verdictToLine(const VariationVerdict& verdict) {
  JsonValue files = JsonValue::array();
  for (const FileVerdict& file : verdict.files) files.push(fileToJson(file));
  JsonValue json = JsonValue::object();
  json.add("design_file", JsonValue::ofString(verdict.designFile));
  json.add("checked", JsonValue::ofBool(verdict.checked));
  json.add("problem", JsonValue::ofString(verdict.problem));
  json.add("boxes", JsonValue::ofStrings(verdict.boxes));
  json.add("files", std::move(files));
  return writeJson(json);
}

bool verdictFromLine(const std::string& line, VariationVerdict& verdict) {
  JsonValue json;
  JsonError error;
  if (!parseJson(line, json, error)) return false;
  const JsonValue* designFile = json.member("design_file");
  const JsonValue* checked = json.member("checked");
  const JsonValue* problem = json.member("problem");
  const JsonValue* boxes = json.member("boxes");
  const JsonValue* files = json.member("files");
  if (designFile == nullptr || checked == nullptr || problem == nullptr || boxes == nullptr ||
      files == nullptr)
    return false;
  verdict.designFile = designFile->text;
  verdict.checked = checked->boolean;
  verdict.problem = problem->text;
  for (const JsonValue& box : boxes->items) verdict.boxes.push_back(box.text);
  for (const JsonValue& item : files->items) {
    FileVerdict file;
    if (!fileFromJson(item, file)) return false;
    verdict.files.push_back(std::move(file));
  }
  return true;
}

bool checkVariations(const std::vector<std::string>& files, int jobs, bool keepExpected,
                     std::vector<VariationVerdict>& verdicts, std::string& failure) {
  verdicts.assign(files.size(), VariationVerdict{});
  const size_t workers = std::min(files.size(), static_cast<size_t>(jobs < 1 ? 1 : jobs));
  if (workers <= 1) {
    const std::string scratch = makeScratchDirectory();
    if (scratch.empty() && !files.empty()) {
      failure = errorMessage(Msg::kCheckWorkerFailed, std::strerror(errno));
      return false;
    }
    for (size_t i = 0; i < files.size(); ++i) verdicts[i] = checkVariation(files[i], scratch, keepExpected);
    if (!scratch.empty()) removeScratchDirectory(scratch);
    return true;
  }

  // Nothing buffered may be written twice by the copies of this process.
  std::fflush(stdout);
  std::fflush(stderr);
  std::vector<int> fds;
  std::vector<pid_t> pids;
  for (size_t k = 0; k < workers; ++k) {
    int ends[2];
    if (pipe(ends) != 0) break;
    const pid_t pid = fork();
    if (pid == 0) {
      for (int fd : fds) close(fd);
      close(ends[0]);
      runWorker(files, k, workers, keepExpected, ends[1]);
    }
    close(ends[1]);
    if (pid < 0) {
      close(ends[0]);
      break;
    }
    fds.push_back(ends[0]);
    pids.push_back(pid);
  }
  const std::vector<std::string> texts = readAllPipes(fds);
  for (int fd : fds) close(fd);
  bool ok = pids.size() == workers;
  std::string cause = ok ? std::string() : std::string(std::strerror(errno));
  for (pid_t pid : pids) {
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
      ok = false;
      cause = WIFSIGNALED(status) ? errorMessage(Msg::kDescribeKilled, formatInt(WTERMSIG(status)))
                                  : errorMessage(Msg::kDescribeExitStatus, formatInt(WEXITSTATUS(status)));
    }
  }
  std::vector<bool> have(files.size(), false);
  for (const std::string& text : texts) ok = fileVerdicts(text, verdicts, have) && ok;
  for (bool got : have) ok = ok && got;
  if (!ok) failure = errorMessage(Msg::kCheckWorkerFailed, cause);
  return ok;
}

}  // namespace plovix
