// Implementation of the text pool.
#include "cnx/TextPool.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <ostream>

namespace plovix {

namespace {

// The empty text, shared by every pool: a header with hash 0 and size 0 followed by the NUL.
struct EmptyText {
  detail::PooledText header;
  char nul = '\0';
};
static_assert(sizeof(detail::PooledText) == 16 && offsetof(EmptyText, nul) == sizeof(detail::PooledText));
constexpr EmptyText kEmptyText{};

// Blocks start small, since most descriptions are a few hundred lines, and double up to the largest size.
constexpr size_t kFirstBlockSize = 1024;
constexpr size_t kBlockSize = 64 * 1024;

}  // namespace

Name::Name() : entry_(&kEmptyText.header) {}

std::ostream& operator<<(std::ostream& out, Name name) {
  return out << name.view();
}

const detail::PooledText* TextPool::store(std::string_view text, size_t hash) {
  const size_t bytes = (sizeof(detail::PooledText) + text.size() + 1 + 7) / 8 * 8;
  std::byte* place = nullptr;
  if (bytes > kBlockSize / 4) {
    // A long text gets a block of its own, so that the current block is not left half empty.
    blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(bytes));
    place = blocks_.back().get();
  } else {
    if (bytes > left_) {
      lastBlockSize_ = std::max(lastBlockSize_ == 0 ? kFirstBlockSize : lastBlockSize_ * 2, bytes);
      lastBlockSize_ = std::min(lastBlockSize_, kBlockSize);
      blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(lastBlockSize_));
      free_ = blocks_.back().get();
      left_ = lastBlockSize_;
    }
    place = free_;
    free_ += bytes;
    left_ -= bytes;
  }
  auto* entry = new (place) detail::PooledText{hash, static_cast<uint32_t>(text.size()), 0};
  char* chars = reinterpret_cast<char*>(entry + 1);
  std::memcpy(chars, text.data(), text.size());
  chars[text.size()] = '\0';
  return entry;
}

void TextPool::rebuild(size_t length) {
  std::vector<Slot, LargeTableAllocator<Slot>> old = std::move(slots_);
  slots_.assign(length, Slot{});
  const size_t mask = slots_.size() - 1;
  for (const Slot& slot : old) {
    if (slot.entry == nullptr) continue;
    size_t i = slot.hash & mask;
    while (slots_[i].entry != nullptr) i = (i + 1) & mask;
    slots_[i] = slot;
  }
}

Name TextPool::add(std::string_view text) {
  if (text.empty()) return Name();
  if (text.size() > UINT32_MAX) text = text.substr(0, UINT32_MAX);
  return Name(store(text, hashText(text)));
}

void TextPool::setTag(Name name, uint32_t tag) {
  // Only the pool's own texts get tags; their storage belongs to the pool and is writable.
  if (name.empty()) return;
  const_cast<detail::PooledText*>(name.entry_)->tag = tag;
}

Name TextPool::intern(std::string_view text) {
  if (text.empty()) return Name();
  // Texts beyond 4 GiB cannot be stored; no description comes near (the reader holds whole files in memory).
  if (text.size() > UINT32_MAX) text = text.substr(0, UINT32_MAX);
  if ((count_ + 1) * 4 > slots_.size() * 3) grow();
  const size_t hash = hashText(text);
  const size_t mask = slots_.size() - 1;
  size_t i = hash & mask;
  for (; slots_[i].entry != nullptr; i = (i + 1) & mask) {
    if (slots_[i].hash == hash && Name(slots_[i].entry).view() == text) return Name(slots_[i].entry);
  }
  slots_[i] = Slot{store(text, hash), hash};
  ++count_;
  return Name(slots_[i].entry);
}

}  // namespace plovix
