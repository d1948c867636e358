// What the tests of the grid's layout and input share: a model whose rows are 20 pixels high in a view of
// 300 x 200 pixels, a paint that draws nothing, and functions that search a list of actions.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "propgrid/controller/Action.h"
#include "propgrid/controller/ScrollRule.h"
#include "propgrid/layout/GridLayout.h"
#include "propgrid/layout/PaintPass.h"
#include "tests/unit/propgrid/TestCustomItem.h"

namespace tests {

using namespace tavrin::propgrid;

class GridFixture : public testing::Test {
protected:
    static constexpr int kRowHeight = 20;
    static constexpr int kWidth = 300;
    static constexpr int kHeight = 200;
    static constexpr int kGutter = 150;

    GridFixture() {
        model.settings.gutter = kGutter;
        model.settings.displayMode = DM_FLAT;
        ShowAt(0);
    }

    Id AddSection(const std::wstring& name = L"section", bool collapsed = false) {
        return model.AddSection(name, collapsed, kNoId);
    }
    Id AddItem(Id section, const std::wstring& name, EItemType kind = IT_STRING, Value value = std::wstring(),
               bool editable = true) {
        return model.AddItem(section, kind, name, std::move(value), editable, false);
    }
    Id AddCustom(Id section, CTestCustomItem& custom, bool editable = true) {
        return AddItem(section, L"custom " + std::to_wstring(model.GetItemCount()), IT_CUSTOM,
                       static_cast<ICustomItem*>(&custom), editable);
    }
    std::vector<Id> AddRows(Id section, int count) {
        std::vector<Id> ids;
        for (int row = 0; row < count; ++row) {
            ids.push_back(AddItem(section, L"row " + std::to_wstring(model.GetItemCount())));
        }
        return ids;
    }
    GridItem& Item(Id id) { return *model.FindItem(id); }
    GridSection& Section(Id id) { return *model.FindSection(id); }

    void ShowAt(int scrollPosition, int scrollBarWidth = 0) {
        layout.SetView({.client = {kWidth, kHeight},
                        .scrollBarWidth = scrollBarWidth,
                        .scrollPosition = scrollPosition,
                        .rowHeight = kRowHeight});
    }
    ScrollState Scroll() const {
        return {.first = 0,
                .end = layout.GetTotalHeight(),
                .page = kHeight,
                .position = layout.GetView().scrollPosition};
    }
    // The rows that a paint would draw.
    std::vector<PaintedRow> Paint() {
        CPaintPass pass(layout);
        std::vector<PaintedRow> rows;
        while (const std::optional<PaintedRow> row = pass.Next()) {
            rows.push_back(*row);
        }
        return rows;
    }
    void Focus(const RowId& row) {
        model.SetFocus(row);
        layout.ForgetEditButton();
        Paint();
    }
    Point NameOf(Id item) { return CenterOf(layout.GetNameRect(Item(item))); }
    Point ValueOf(Id item) { return CenterOf(layout.GetValueRect(Item(item))); }
    Point ButtonOf(Id item) { return {kWidth - kRowHeight / 2, NameOf(item).y}; }
    static Point CenterOf(const Rect& rect) {
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }

    CGridModel model;
    CGridLayout layout{model};
};

template <class T>
const T* FindAction(const Actions& actions) {
    for (const Action& candidate : actions) {
        if (const T* const found = std::get_if<T>(&candidate)) {
            return found;
        }
    }
    return nullptr;
}

template <class T>
bool HasAction(const Actions& actions) {
    return FindAction<T>(actions) != nullptr;
}

}  // namespace tests
