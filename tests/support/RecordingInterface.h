// A user interface for tests: records every box and answers questions from a script (OK when it runs out).
#pragma once

#include <deque>
#include <string>
#include <vector>

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
    boxes.push_back("question: " + text + (answer ? " => OK" : " => Cancel"));
    return answer;
  }

  std::vector<std::string> boxes;
  std::deque<bool> answers;
  bool defaultAnswer = true;
};

}  // namespace plovix::testing
