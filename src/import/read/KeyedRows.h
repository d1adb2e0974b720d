#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrel {

/// Rows found by their key, which `Row::Key()` tells, one for each key. Beside the rows themselves it takes
/// some ten bytes for each.
template <typename Row>
class KeyedRows {
 public:
  using Key = decltype(std::declval<const Row&>().Key());

  /// The row's index, until a row is removed.
  std::optional<std::size_t> IndexOf(Key key) const {
    if (slots_.empty()) return std::nullopt;
    const std::size_t slot = SlotOf(key);
    return slots_[slot] == kFree ? std::nullopt : std::optional<std::size_t>(slots_[slot]);
  }
  const Row* Find(Key key) const {
    const std::optional<std::size_t> index = IndexOf(key);
    return index ? &rows_[*index] : nullptr;
  }
  Row* Find(Key key) { return const_cast<Row*>(std::as_const(*this).Find(key)); }

  /// REQUIRES: no row has its key.
  Row& Add(Row row) {
    rows_.push_back(std::move(row));
    if (++taken_ * 4 > slots_.size() * 3)
      MakeSlots();
    else
      slots_[SlotOf(rows_.back().Key())] = static_cast<std::uint32_t>(rows_.size() - 1);
    return rows_.back();
  }

  /// The last row takes the place of the removed one. REQUIRES: a row has the key.
  void Remove(Key key) {
    const std::size_t slot = SlotOf(key);
    const std::size_t slotOfLast = SlotOf(rows_.back().Key());
    const std::uint32_t index = std::exchange(slots_[slot], kGone);
    if (slot != slotOfLast) {
      rows_[index] = std::move(rows_.back());
      slots_[slotOfLast] = index;
    }
    rows_.pop_back();
  }

  std::size_t size() const { return rows_.size(); }
  const Row& operator[](std::size_t index) const { return rows_[index]; }
  auto begin() const { return rows_.begin(); }
  auto end() const { return rows_.end(); }

 private:
  static constexpr std::uint32_t kFree = 0xFFFFFFFF;
  static constexpr std::uint32_t kGone = 0xFFFFFFFE;

  /// An odd number that nobody who writes a table can know, so that nobody can choose keys which all fall
  /// into the same slots.
  static std::uint64_t Spreader() {
    static const std::uint64_t spreader = [] {
      std::random_device random;
      return std::uint64_t{random()} << 32 | random() | 1;
    }();
    return spreader;
  }

  static std::uint64_t Folded(std::uint64_t key) { return key; }
  static std::uint64_t Folded(std::string_view key) {
    std::uint64_t folded = key.size();
    for (const char c : key) folded = folded * Spreader() + static_cast<unsigned char>(c);
    return folded;
  }

  /// The slot of the key, or the free one where it is looked for in vain.
  std::size_t SlotOf(Key key) const {
    const std::uint64_t spread = Folded(key) * Spreader();
    std::size_t slot = spread >> (64 - std::countr_zero(slots_.size()));
    while (slots_[slot] != kFree && (slots_[slot] == kGone || rows_[slots_[slot]].Key() != key))
      slot = (slot + 1) % slots_.size();
    return slot;
  }

  void MakeSlots() {
    const std::size_t size = std::bit_ceil(rows_.size() * 4 / 3 + 2);
    slots_ = {};  // its memory, too, before the new one's
    slots_.assign(size, kFree);
    for (std::size_t i = 0; i < rows_.size(); ++i)
      slots_[SlotOf(rows_[i].Key())] = static_cast<std::uint32_t>(i);
    taken_ = rows_.size();
  }

  std::deque<Row> rows_;
  std::vector<std::uint32_t> slots_;  // a power of two of them: indexes of rows
  std::size_t taken_ = 0;             // slots that are not free
};

}  // namespace kestrel
