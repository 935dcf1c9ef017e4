// A user interface for tests: records every box and answers questions from a script (OK when it runs out).
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "base/Report.h"
#include "base/UserInterface.h"

namespace plovix::testing {

class RecordingInterface : public UserInterface {
 public:
  void report(const std::string& text) override { boxes.push_back("report: " + text); }
  bool ask(const std::string& text) override {
    bool answer = defaultAnswer;
    if (!answers.empty()) {
      answer = answers.front();
      answers.pop_front();
    }
    boxes.push_back(asked(text, answer));
    return answer;
  }

  // The box of a question as `boxes` records it.
  static std::string asked(const std::string& question, bool answer) {
    return "question: " + question + (answer ? " => OK" : " => Cancel");
  }

  std::vector<std::string> boxes;
  std::deque<bool> answers;
  bool defaultAnswer = true;
};

// The box of a report of message `id` with its arguments, as RecordingInterface records it.
template <typename... Args>
std::string reported(Msg id, const Args&... args) {
  return "report: " + errorMessage(id, std::string(args)...);
}

// The same for a question and its answer.
inline std::string asked(const std::string& question, bool answer = true) {
  return RecordingInterface::asked(question, answer);
}

}  // namespace plovix::testing
