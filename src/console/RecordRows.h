#pragma once

#include "layout/KeyedRows.h"
#include "layout/LazyRows.h"
#include "observation/observe.h"
#include "workspace/WorkspaceStore.h"

#include <ranges>
#include <type_traits>

namespace quorvel {

/// The first few records of one of the store's lists.
template <Record Item>
struct ListPart {
  const Published<RecordList<Item>>& list;
  std::size_t count;
};

template <Record Item>
ListPart<Item> firstOf(const Published<RecordList<Item>>& list, std::size_t count) {
  return {list, count};
}

/// A list of the store on screen: a container (a `VStack`, an `AdaptiveGrid`) with a row for each record,
/// which keeps in step with the list. While there is nothing to show it is hidden, so that no gap is kept for
/// it.
template <class Container, Record Item, class Row>
class RecordRows : public Container {
 public:
  using MakeRow = typename KeyedRows<Item, Row>::MakeRow;

  /// `layout` is what the container is made of. The store outlives the rows.
  template <class... Layout>
  RecordRows(WorkspaceStore& store, ListPart<Item> part, MakeRow makeRow, Layout... layout)
      : Container(layout...), part_(part), rows_(*this, std::move(makeRow)) {
    this->set_hexpand(true);
    observe(store, *this, &RecordRows::refresh);
  }

 protected:
  /// Shows the list as it is now.
  virtual void refresh() {
    rows_.show(*part_.list | std::views::take(part_.count));
    this->set_visible(!part_.list->empty());
  }

 private:
  ListPart<Item> part_;
  KeyedRows<Item, Row> rows_;
};

/// Makes the rows of a list of the store; `makeRow` makes a managed row from its record. Managed.
template <class Container, Record Item, class MakeRow, class... Layout>
auto* recordRows(WorkspaceStore& store, ListPart<Item> part, MakeRow makeRow, Layout... layout) {
  using Row = std::remove_pointer_t<std::invoke_result_t<MakeRow, const Item&>>;
  return Gtk::make_managed<RecordRows<Container, Item, Row>>(store, part, std::move(makeRow), layout...);
}

/// A whole list of the store on screen, however long: only the rows or cards near sight exist. While there is
/// nothing to show it is hidden, so that no gap is kept for it.
template <Record Item, class Row>
class LazyRecordRows : public LazyRows<Item, Row> {
 public:
  using List = Published<RecordList<Item>>;
  using MakeRow = typename LazyRows<Item, Row>::MakeRow;

  /// The store outlives the rows.
  LazyRecordRows(WorkspaceStore& store, const List& list, LazyGrid::Form form, MakeRow makeRow)
      : LazyRows<Item, Row>(list, form, std::move(makeRow)), list_(list) {
    observe(store, *this, &LazyRecordRows::refresh);
  }

 protected:
  /// Shows the list as it is now.
  virtual void refresh() {
    LazyRows<Item, Row>::refresh();
    this->set_visible(!list_->empty());
  }

 private:
  const List& list_;
};

/// Makes the rows of a whole list of the store; `makeRow` makes a managed row from its record. Managed.
template <Record Item, class MakeRow>
auto* lazyRecordRows(WorkspaceStore& store, const Published<RecordList<Item>>& list, LazyGrid::Form form,
                     MakeRow makeRow) {
  using Row = std::remove_pointer_t<std::invoke_result_t<MakeRow, const Item&>>;
  return Gtk::make_managed<LazyRecordRows<Item, Row>>(store, list, form, std::move(makeRow));
}

/// A row that needs its record alone.
template <class Row>
constexpr auto made = [](const auto& record) { return Gtk::make_managed<Row>(record); };

} // namespace quorvel
