#include "devhost/drawing/DrawingHistory.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace devhost {

namespace {

// Moves the entities from `start` on to the end of another list.
void MoveTail(std::vector<Entity>& from, std::size_t start, std::vector<Entity>& to) {
    const auto first = from.begin() + static_cast<std::ptrdiff_t>(start);
    to.insert(to.end(), std::make_move_iterator(first), std::make_move_iterator(from.end()));
    from.erase(first, from.end());
}

}  // namespace

void CDrawingHistory::BeginCommand() {
    if (m_done.empty() || !m_done.back().empty()) {
        m_done.emplace_back();
    }
}

CDrawingHistory::Command& CDrawingHistory::Current() {
    if (m_done.empty()) {
        m_done.emplace_back();
    }
    m_undone.clear();
    return m_done.back();
}

void CDrawingHistory::NoteAdded() {
    Command& command = Current();
    if (command.empty() || command.back().isClear) {
        command.emplace_back();
    }
    ++command.back().added;
}

void CDrawingHistory::NoteCleared(std::vector<Entity> entities) {
    Change& change = Current().emplace_back();
    change.isClear = true;
    change.entities = std::move(entities);
}

bool CDrawingHistory::CanUndo() const {
    return m_done.size() > 1 || (m_done.size() == 1 && !m_done.back().empty());
}

void CDrawingHistory::Undo(std::vector<Entity>& entities) {
    if (!m_done.empty() && m_done.back().empty()) {
        m_done.pop_back();
    }
    if (m_done.empty()) {
        return;
    }
    Undo(m_done.back(), entities);
    m_undone.push_back(std::move(m_done.back()));
    m_done.pop_back();
    m_done.emplace_back();
}

void CDrawingHistory::Redo(std::vector<Entity>& entities) {
    if (m_undone.empty()) {
        return;
    }
    if (!m_done.empty() && m_done.back().empty()) {
        m_done.pop_back();
    }
    Redo(m_undone.back(), entities);
    m_done.push_back(std::move(m_undone.back()));
    m_undone.pop_back();
    m_done.emplace_back();
}

void CDrawingHistory::RevertCommand(std::vector<Entity>& entities) {
    if (!m_done.empty()) {
        Undo(m_done.back(), entities);
        m_done.back().clear();
    }
}

void CDrawingHistory::Undo(Command& command, std::vector<Entity>& entities) {
    std::for_each(command.rbegin(), command.rend(), [&](auto& change) {
        if (change.isClear) {
            entities.swap(change.entities);
        } else {
            MoveTail(entities, entities.size() - change.added, change.entities);
        }
    });
}

void CDrawingHistory::Redo(Command& command, std::vector<Entity>& entities) {
    for (Change& change : command) {
        if (change.isClear) {
            entities.swap(change.entities);
        } else {
            MoveTail(change.entities, 0, entities);
        }
    }
}

}  // namespace devhost
