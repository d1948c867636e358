// What of a property grid's rows has changed since it was last reported to assistive technology: moves of the
// focus, collapsed and expanded sections, added and removed rows, which it finds itself, and changed values
// and states of items, which it is told of. The window reports all of it at its next paint, so that a client
// that is filling the grid causes one report.
#pragma once

#include <functional>
#include <vector>

#include "accessible/Terms.h"
#include "propgrid/accessible/AccessibleRows.h"

namespace tavrin::propgrid {

struct AccessibleEvent {
    accessible::EEvent event;
    int child;  // kSelf for the grid itself
    bool operator==(const AccessibleEvent&) const = default;
};

class CAccessibleChanges {
public:
    CAccessibleChanges(const CGridModel& model, const CAccessibleRows& rows) : m_model(model), m_rows(rows) {}
    CAccessibleChanges(const CAccessibleChanges&) = delete;
    CAccessibleChanges& operator=(const CAccessibleChanges&) = delete;

    // The item has another value, or another state.
    void NoteValue(Id item) { Note(EVENT_VALUE_CHANGE, item); }
    void NoteState(Id item) { Note(EVENT_STATE_CHANGE, item); }
    // The window has got the focus.
    void NoteWindowFocus() { m_focusIsNew = true; }

    // What has changed, the rows themselves first; nothing after that until there are further changes. The
    // focus is reported while the window has it, which is asked only after a change of the focus; the
    // selection always. The children are those of the rows as they are now; what happened to rows that the
    // display does not have is left out.
    std::vector<AccessibleEvent> Take(const std::function<bool()>& windowHasFocus);

private:
    using enum accessible::EEvent;

    // Beyond so many items their rows as a whole have changed.
    static constexpr std::size_t kMostItems = 64;

    struct ItemChange {
        accessible::EEvent event;
        Id item;
        bool operator==(const ItemChange&) const = default;
    };
    // What decides which rows there are. Comparing it costs little.
    struct Shape {
        unsigned revision = 0;
        std::uint32_t displayMode = DM_CATEGORIZED;
        std::vector<bool> collapsed;  // by section id
        bool operator==(const Shape&) const = default;
    };

    void Note(accessible::EEvent event, Id item);
    Shape ReadShape() const;
    void AddShapeEvents(std::vector<AccessibleEvent>& events);
    void AddItemEvents(std::vector<AccessibleEvent>& events);
    void AddFocusEvents(std::vector<AccessibleEvent>& events, const std::function<bool()>& windowHasFocus);

    const CGridModel& m_model;
    const CAccessibleRows& m_rows;
    Shape m_shape;  // that was reported
    unsigned m_generation = 0;
    RowId m_focus;
    bool m_focusIsNew = false;
    std::vector<ItemChange> m_changes;  // since the last report
    bool m_tooManyChanges = false;
    unsigned m_changesGeneration = 0;  // of the model, that they are of
};

}  // namespace tavrin::propgrid
