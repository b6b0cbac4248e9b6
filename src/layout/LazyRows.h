#pragma once

#include "layout/KeyedRows.h"
#include "layout/LazyGrid.h"

#include <deque>
#include <ranges>
#include <utility>

namespace quorvel {

/// The rows or cards of a list that may be long: what `KeyedRows` does, at the cost of those in sight.
///
/// Rows are told apart by the `id` of their records and are children of this widget, in order. The list is
/// read as it is at the time and outlives this widget; it may change in any way, but where it grows it is
/// taken to grow at its front.
template <class Record, class Row>
class LazyRows : public LazyGrid {
 public:
  using MakeRow = typename KeyedRows<Record, Row>::MakeRow;

  LazyRows(const std::deque<Record>& records, Form form, MakeRow makeRow)
      : LazyGrid(form), records_(records), rows_(*this, std::move(makeRow)) {}

  /// Shows the list as it is now.
  void refresh() { update(); }

 protected:
  std::size_t count() const override { return records_.size(); }
  void showCells(const std::vector<std::size_t>& places) override {
    rows_.show(places |
               std::views::transform([this](std::size_t place) -> const Record& { return records_[place]; }));
  }

 private:
  const std::deque<Record>& records_;
  KeyedRows<Record, Row> rows_;
};

} // namespace quorvel
