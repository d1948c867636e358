#include "propgrid/accessible/AccessibleChanges.h"

#include <algorithm>
#include <utility>

namespace tavrin::propgrid {

using accessible::kSelf;

void CAccessibleChanges::Note(accessible::EEvent event, Id item) {
    if (std::exchange(m_changesGeneration, m_model.GetGeneration()) != m_model.GetGeneration()) {
        m_changes.clear();
    }
    const ItemChange change = {event, item};
    if (m_tooManyChanges || std::find(m_changes.begin(), m_changes.end(), change) != m_changes.end()) {
        return;
    }
    m_tooManyChanges = m_changes.size() >= kMostItems;
    if (!m_tooManyChanges) {
        m_changes.push_back(change);
    }
}

std::vector<AccessibleEvent> CAccessibleChanges::Take(const std::function<bool()>& windowHasFocus) {
    std::vector<AccessibleEvent> events;
    AddShapeEvents(events);
    AddItemEvents(events);
    AddFocusEvents(events, windowHasFocus);
    return events;
}

CAccessibleChanges::Shape CAccessibleChanges::ReadShape() const {
    Shape shape = {m_model.GetRevision(), m_model.settings.displayMode, {}};
    shape.collapsed.resize(m_model.GetSections().size());
    for (const GridSection* const section : m_model.GetSections()) {
        shape.collapsed[section->id] = section->collapsed;
    }
    return shape;
}

// Sections that were added since, or that have the ids of removed ones, have not changed their state.
void CAccessibleChanges::AddShapeEvents(std::vector<AccessibleEvent>& events) {
    Shape shape = ReadShape();
    if (shape == m_shape && !m_tooManyChanges) {
        return;
    }
    events.push_back({EVENT_REORDER, kSelf});
    const bool sameSections = std::exchange(m_generation, m_model.GetGeneration()) == m_generation;
    const std::size_t known = sameSections ? m_shape.collapsed.size() : 0;
    for (Id section = 0; section < known; ++section) {
        const int child = m_rows.FindChild({.section = section});
        if (shape.collapsed[section] != m_shape.collapsed[section] && child != kSelf) {
            events.push_back({EVENT_STATE_CHANGE, child});
        }
    }
    m_shape = std::move(shape);
}

void CAccessibleChanges::AddItemEvents(std::vector<AccessibleEvent>& events) {
    const std::vector<ItemChange> changes = std::exchange(m_changes, {});
    if (std::exchange(m_tooManyChanges, false) || m_changesGeneration != m_model.GetGeneration()) {
        return;
    }
    for (const ItemChange& change : changes) {
        const int child = m_rows.FindChild({.item = change.item});
        if (child != kSelf) {
            events.push_back({change.event, child});
        }
    }
}

void CAccessibleChanges::AddFocusEvents(std::vector<AccessibleEvent>& events,
                                        const std::function<bool()>& windowHasFocus) {
    const bool moved = std::exchange(m_focus, m_model.GetFocus()) != m_model.GetFocus();
    const bool isNew = std::exchange(m_focusIsNew, false);
    const int child = m_rows.GetFocusedChild();
    if (moved) {
        events.push_back({EVENT_SELECTION, child});
    }
    if ((moved || isNew) && windowHasFocus()) {
        events.push_back({EVENT_FOCUS, child});
    }
}

}  // namespace tavrin::propgrid
