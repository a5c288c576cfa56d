// Records in the order of a list, found by id as well; each operation takes the same time in a long
// list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <map>
#include <unordered_map>
#include <utility>

namespace velk {

enum class List_Order { oldest_first, newest_first };

/// `Record` has a member `id`, which no two records of a list share.
template <typename Record, List_Order order>
class Record_List {
  public:
    class const_iterator;

    const_iterator begin() const { return const_iterator(records_.begin()); }
    const_iterator end() const { return const_iterator(records_.end()); }
    std::size_t size() const { return records_.size(); }

    void add(Record record) {
        const std::int64_t place = order == List_Order::newest_first ? -added_ : added_;
        ++added_;
        places_[record.id] = place;
        records_.emplace(place, std::move(record));
    }

    /// Null when there is none. The pointer lasts until the record is erased.
    const Record* find(std::int64_t id) const {
        const auto place = places_.find(id);
        return place == places_.end() ? nullptr : &records_.at(place->second);
    }
    Record* find(std::int64_t id) {
        const auto place = places_.find(id);
        return place == places_.end() ? nullptr : &records_.at(place->second);
    }

    bool erase(std::int64_t id) {
        const auto place = places_.find(id);
        if (place == places_.end()) return false;
        records_.erase(place->second);
        places_.erase(place);
        return true;
    }

    void clear() {
        records_.clear();
        places_.clear();
    }

    /// Where reading with next() begins.
    static constexpr std::int64_t start = std::numeric_limits<std::int64_t>::min();

    /// The first record after `place`, which is set to it; null at the end. The list may change
    /// between two calls: each record that stays is read once.
    const Record* next(std::int64_t& place) const {
        const auto found = records_.upper_bound(place);
        if (found == records_.end()) return nullptr;
        place = found->first;
        return &found->second;
    }

  private:
    using Records = std::map<std::int64_t, Record>;

    Records records_;                                        // by place
    std::unordered_map<std::int64_t, std::int64_t> places_;  // by id
    std::int64_t added_ = 0;
};

template <typename Record, List_Order order>
class Record_List<Record, order>::const_iterator {
  public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Record;
    using difference_type = std::ptrdiff_t;
    using pointer = const Record*;
    using reference = const Record&;

    const_iterator() = default;
    explicit const_iterator(typename Records::const_iterator place) : place_(place) {}

    reference operator*() const { return place_->second; }
    pointer operator->() const { return &place_->second; }
    const_iterator& operator++() {
        ++place_;
        return *this;
    }
    const_iterator operator++(int) {
        const_iterator before = *this;
        ++place_;
        return before;
    }
    bool operator==(const const_iterator& other) const { return place_ == other.place_; }

  private:
    typename Records::const_iterator place_{};
};

}  // namespace velk
