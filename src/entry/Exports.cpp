// The four functions libvamlet.so exports to its host.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

#include "entry/ManagerApp.h"
#include "entry/RunFlow.h"
#include "entry/StandardRunSteps.h"
#include "plovix/vamlet.h"
#include "ui/FrontEndFactory.h"

namespace {

// Fields are written through their offsets: the host's record need be no larger than the last text's end.
template <class T>
void put(unsigned char* record, size_t offset, T value) {
  std::memcpy(record + offset, &value, sizeof value);
}

void putText(unsigned char* record, size_t offset, const char* text) {
  std::memcpy(record + offset, text, std::strlen(text) + 1);
}

}  // namespace

int32_t qlx_attributes(vamlet_host_attributes* host) {
  auto* record = reinterpret_cast<unsigned char*>(host);
  put<uint16_t>(record, offsetof(vamlet_host_attributes, value_0), 99);
  put<uint32_t>(record, offsetof(vamlet_host_attributes, value_4), 14);
  put<uint32_t>(record, offsetof(vamlet_host_attributes, value_32), 0);
  put<uint16_t>(record, offsetof(vamlet_host_attributes, value_2), 1);
  put<uint32_t>(record, offsetof(vamlet_host_attributes, value_12), 0);
  put<uint16_t>(record, offsetof(vamlet_host_attributes, value_36), 0x8000);
  put<uint16_t>(record, offsetof(vamlet_host_attributes, value_38), 0x8000);
  putText(record, offsetof(vamlet_host_attributes, menu_text), "Wi&zard Manager");
  putText(record, offsetof(vamlet_host_attributes, module_name), "vamlet");
  return 1;
}

void vamlet_launch_wizard_direct(const char* fileName) {
  plovix::ManagerApp& app = plovix::ManagerApp::instance();
  app.fetchProjectDirectory();
  std::unique_ptr<plovix::FrontEnd> frontEnd = plovix::makeFrontEnd(plovix::frontEndOptionsFromEnvironment());
  plovix::StandardRunSteps steps(app, *frontEnd, *frontEnd);
  plovix::runManager(app, *frontEnd, steps, fileName, nullptr);
}

void qlx_entry(void) {
  vamlet_launch_wizard_direct(nullptr);
}

void vamlet_launch_wizard_with_name_return(char* buffer, uint32_t size) {
  vamlet_launch_wizard_direct(nullptr);
  const std::string path = plovix::ManagerApp::instance().run.outputPath();
  if (buffer == nullptr || size == 0) return;
  if (path.size() < size) {
    std::memcpy(buffer, path.c_str(), path.size() + 1);
  } else {
    std::memcpy(buffer, path.data(), size - 1);
    buffer[size - 1] = '\0';
  }
}
