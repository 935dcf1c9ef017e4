// The four functions libvamlet.so exports to its host.
#include <cstdint>
#include <cstring>
#include <memory>

#include "entry/ManagerApp.h"
#include "entry/RunFlow.h"
#include "entry/StandardRunSteps.h"
#include "ui/FrontEndFactory.h"

#define VAMLET_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

template <class T>
void put(unsigned char* record, size_t offset, T value) {
  std::memcpy(record + offset, &value, sizeof value);
}

void putText(unsigned char* record, size_t offset, const char* text) {
  std::memcpy(record + offset, text, std::strlen(text) + 1);
}

}  // namespace

VAMLET_EXPORT int32_t qlx_attributes(void* recordPointer) {
  auto* record = static_cast<unsigned char*>(recordPointer);
  put<uint16_t>(record, 0, 99);
  put<uint32_t>(record, 4, 14);
  put<uint32_t>(record, 32, 0);
  put<uint16_t>(record, 2, 1);
  put<uint32_t>(record, 12, 0);
  put<uint16_t>(record, 36, 0x8000);
  put<uint16_t>(record, 38, 0x8000);
  putText(record, 40, "Wi&zard Manager");
  putText(record, 105, "vamlet");
  return 1;
}

VAMLET_EXPORT void vamlet_launch_wizard_direct(const char* fileName) {
  plovix::ManagerApp& app = plovix::ManagerApp::instance();
  app.fetchProjectDirectory();
  std::unique_ptr<plovix::FrontEnd> frontEnd = plovix::makeFrontEnd(plovix::frontEndOptionsFromEnvironment());
  plovix::StandardRunSteps steps(app, *frontEnd, *frontEnd);
  plovix::runManager(app, *frontEnd, steps, fileName, nullptr);
}

VAMLET_EXPORT void qlx_entry(void) {
  vamlet_launch_wizard_direct(nullptr);
}

VAMLET_EXPORT void vamlet_launch_wizard_with_name_return(char* buffer, uint32_t size) {
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
