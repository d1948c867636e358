// What the window has to do after input. The controllers change the model and the layout themselves and
// return the rest as a list of actions, which the window carries out in order.
//
// Actions name items by their ids: carrying one out may run the client's code, which may remove rows. An
// action whose item no longer exists is skipped.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "propgrid/layout/Geometry.h"
#include "propgrid/model/ItemType.h"

namespace tavrin::propgrid {

enum ECursor { CU_ARROW, CU_SIZE };
enum ECustomEvent { CE_MOVE, CE_UP };

namespace action {

// Captures the mouse; gives it back.
struct BeginCapture {};
struct EndCapture {};

struct ShowCursor {
    ECursor cursor;
};

struct Repaint {};

// The number of rows may have changed: the scroll bar follows, everything is repainted.
struct Relayout {};

// Moves the rows to a scroll position.
struct ScrollTo {
    int position;
};

// Calls ICustomItem::OnLButtonDown; the answer goes to CMouseController::AnswerPress.
struct AskCustomItem {
    Id item;
    Rect value;
    Point point;
};

// Calls ICustomItem::OnMouseMove or OnLButtonUp.
struct NotifyCustomItem {
    Id item;
    ECustomEvent event;
    Rect value;
    Point point;
};

// Opens the in-place edit over a rectangle, with the item's text; `typed` then replaces the text as if it
// were typed there, unless it is 0.
struct OpenTextEdit {
    Id item;
    Rect rect;
    wchar_t typed = 0;
};

// Drops the item's list or calendar down under a cell, which reaches from the divider to the row's right
// edge.
struct DropDown {
    Id item;
    Rect cell;
};

// Runs the item's dialog.
struct EditInDialog {
    Id item;
};

// Passes the text of its edit to a custom item; `typed` when the user changed it. Calls
// ICustomItem::SetStringValue, and notifies the owner when that returns true.
struct GiveText {
    Id item;
    std::wstring text;
    bool typed;
};

// Notifies the owner that the user changed the item. Sent even when the item no longer exists.
struct Notify {
    Id item;
};

// The window's default handling of the message follows.
struct DefaultHandling {};

}  // namespace action

using Action = std::variant<action::BeginCapture, action::EndCapture, action::ShowCursor, action::Repaint,
                            action::Relayout, action::ScrollTo, action::AskCustomItem,
                            action::NotifyCustomItem, action::OpenTextEdit, action::DropDown,
                            action::EditInDialog, action::GiveText, action::Notify, action::DefaultHandling>;
using Actions = std::vector<Action>;

}  // namespace tavrin::propgrid
