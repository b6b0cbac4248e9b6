#pragma once

#include "layout/KeyedRows.h"
#include "observation/observe.h"
#include "workspace/WorkspaceStore.h"

#include <ranges>
#include <type_traits>

namespace quorvel {

/// One of the store's lists, or its first few records.
template <Record Item>
struct ListPart {
  const Published<RecordList<Item>>& list;
  std::size_t count;
};

template <Record Item>
ListPart<Item> allOf(const Published<RecordList<Item>>& list) {
  return {list, static_cast<std::size_t>(-1)};
}

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

/// For `recordRows`: a row that needs its record alone.
template <class Row>
constexpr auto made = [](const auto& record) { return Gtk::make_managed<Row>(record); };

} // namespace quorvel
