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
/// with `show(const Record&)`, and stands in its container as any other child that is placed there. The
/// container (a `VStack`, a `Container`) has no other children and outlives this object's use.
template <class Record, class Row>
class KeyedRows {
 public:
  /// Builds the row of a record that was not there before, already showing it.
  using MakeRow = std::function<Row*(const Record&)>;

  template <class Container>
  KeyedRows(Container& container, MakeRow makeRow)
      : container_(container), makeRow_(std::move(makeRow)),
        place_([&container](Gtk::Widget& row, Gtk::Widget* previous) { container.place(row, previous); }) {}

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
      if (!standsBehind(*row, previous))
        place_(*row, previous);
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
  bool standsBehind(const Gtk::Widget& row, const Gtk::Widget* previous) const {
    return row.get_parent() == &container_ && row.get_prev_sibling() == previous;
  }

  Gtk::Widget& container_;
  MakeRow makeRow_;
  std::function<void(Gtk::Widget& row, Gtk::Widget* previous)> place_;
  Entries rows_;
};

} // namespace quorvel
