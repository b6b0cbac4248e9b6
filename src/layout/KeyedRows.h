#pragma once

#include <functional>
#include <gtkmm/widget.h>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quorvel {

/// Keeps the rows of a container in step with a list of records, by their `id`.
///
/// A kept id keeps its widget, so focus, hover and a running animation survive; a record that did not change
/// is not shown again; new rows are inserted, gone ones removed, moved ones moved. `Row` is a managed widget
/// with `show(const Record&)`. The container has no other children and outlives this object's use.
template <class Record, class Row>
class KeyedRows {
 public:
  /// Builds the row of a record that was not there before, already showing it.
  using MakeRow = std::function<Row*(const Record&)>;

  KeyedRows(Gtk::Widget& container, MakeRow makeRow) : container_(container), makeRow_(std::move(makeRow)) {}

  /// Shows these records, in this order. `records` is any range of `Record`; of two with one id the first
  /// counts.
  template <class Records>
  void show(const Records& records) {
    Entries gone = std::exchange(rows_, {});
    std::vector<Row*> order;
    for (const Record& record : records)
      if (const auto [entry, isNew] = rows_.try_emplace(record.id); isNew) {
        entry->second = take(gone, record);
        order.push_back(entry->second.row);
      }
    for (auto& [id, entry] : gone)
      entry.row->unparent();
    Gtk::Widget* previous = nullptr;
    for (auto* row : order) {
      place(*row, previous);
      previous = row;
    }
  }

  /// The row of this id, or nothing.
  Row* row(const std::string& id) const {
    const auto found = rows_.find(id);
    return found == rows_.end() ? nullptr : found->second.row;
  }

 private:
  struct Entry {
    Row* row = nullptr;
    Record shown;
  };
  using Entries = std::unordered_map<std::string, Entry>;

  /// The row that shows this record: the one it had, told of what changed, or a new one.
  Entry take(Entries& from, const Record& record) {
    const auto found = from.find(record.id);
    if (found == from.end())
      return {makeRow_(record), record};
    Entry entry = std::move(found->second);
    from.erase(found);
    if (entry.shown != record) {
      entry.row->show(record);
      entry.shown = record;
    }
    return entry;
  }

  /// A row that stands in its place already is left alone: moving a widget would take the focus from it.
  void place(Gtk::Widget& row, Gtk::Widget* previous) {
    const bool stands = row.get_parent() == &container_ && row.get_prev_sibling() == previous;
    if (stands)
      return;
    if (previous)
      row.insert_after(container_, *previous);
    else
      row.insert_at_start(container_);
  }

  Gtk::Widget& container_;
  MakeRow makeRow_;
  Entries rows_;
};

} // namespace quorvel
