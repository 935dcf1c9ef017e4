// Interned texts: a TextPool stores each distinct text once and hands it out as a Name, which copies as a
// pointer, compares and hashes without reading the text again, and gives a NUL-terminated C string.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/LargeTable.h"

namespace plovix {

namespace detail {

// The header in front of every pooled text; the bytes of the text and a NUL follow it.
struct alignas(8) PooledText {
  size_t hash = 0;
  uint32_t size = 0;
  uint32_t tag = 0;  // a number the pool's owner may attach to the text
};

}  // namespace detail

// The hash of a text, as every Name carries it (0 for the empty text).
inline size_t hashText(std::string_view text) {
  return text.empty() ? 0 : std::hash<std::string_view>{}(text);
}

// A text held by a TextPool, or the empty text, which needs no pool. A Name stays valid as long as its pool
// lives. Two names are equal when their texts are equal; names of one pool are equal only when they are the
// same pointer, so comparing them is one comparison.
class Name {
 public:
  Name();

  std::string_view view() const { return {c_str(), entry_->size}; }
  const char* c_str() const { return reinterpret_cast<const char*>(entry_ + 1); }
  std::string str() const { return std::string(view()); }
  size_t size() const { return entry_->size; }
  bool empty() const { return entry_->size == 0; }
  size_t hash() const { return entry_->hash; }

  friend bool operator==(Name a, Name b) {
    return a.entry_ == b.entry_ || (a.entry_->hash == b.entry_->hash && a.view() == b.view());
  }
  friend bool operator==(Name a, std::string_view b) { return a.view() == b; }

 private:
  friend class TextPool;
  friend class Bound;
  explicit Name(const detail::PooledText* entry) : entry_(entry) {}

  const detail::PooledText* entry_;
};

std::ostream& operator<<(std::ostream& out, Name name);

// The pool: an arena of texts and an open-addressing table that finds a text already stored. Texts are never
// removed; the pool is not copied (Names point into it) but may be moved.
class TextPool {
 public:
  TextPool() = default;
  TextPool(const TextPool&) = delete;
  TextPool& operator=(const TextPool&) = delete;
  TextPool(TextPool&&) = default;
  TextPool& operator=(TextPool&&) = default;

  // The Name of `text`, stored now if the pool does not hold it yet.
  Name intern(std::string_view text);
  // Stores `text` without looking for it first: for texts known to be new, such as numbered names. The Name
  // is equal to any other Name of the same text, but intern() does not give it back.
  Name add(std::string_view text);

  // A number attached to a text of this pool, 0 until set: lets the owner find a record by its text with the
  // one lookup that interning makes anyway.
  uint32_t tag(Name name) const { return name.entry_->tag; }
  void setTag(Name name, uint32_t tag);

  // Makes room for about `count` interned texts, so that the table is not rebuilt while they come.
  void reserve(size_t count) {
    size_t length = slots_.empty() ? 64 : slots_.size();
    while (count * 4 > length * 3) length *= 2;
    if (length != slots_.size()) rebuild(length);
  }

  // The number of texts interned.
  size_t size() const { return count_; }

 private:
  struct Slot {
    const detail::PooledText* entry = nullptr;
    size_t hash = 0;
  };

  const detail::PooledText* store(std::string_view text, size_t hash);
  void grow() { rebuild(slots_.empty() ? 64 : slots_.size() * 2); }
  void rebuild(size_t length);

  std::vector<std::unique_ptr<std::byte[]>> blocks_;
  std::byte* free_ = nullptr;
  size_t left_ = 0;
  size_t lastBlockSize_ = 0;                            // the size of the block last made
  std::vector<Slot, LargeTableAllocator<Slot>> slots_;  // a power of two long, at most three quarters full
  size_t count_ = 0;
};

// Hashing and comparing for containers keyed by Name that can also be searched with a string_view.
struct NameHash {
  using is_transparent = void;
  size_t operator()(Name name) const { return name.hash(); }
  size_t operator()(std::string_view text) const { return hashText(text); }
};
struct NameEqual {
  using is_transparent = void;
  bool operator()(Name a, Name b) const { return a == b; }
  bool operator()(Name a, std::string_view b) const { return a == b; }
  bool operator()(std::string_view a, Name b) const { return b == a; }
};

}  // namespace plovix

template <>
struct std::hash<plovix::Name> {
  size_t operator()(plovix::Name name) const noexcept { return name.hash(); }
};
