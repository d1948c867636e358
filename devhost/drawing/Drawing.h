// A drawing: lines, polylines, circles, arcs and texts, in the order of their creation.
//
// Owns the entities, and undoes and redoes the commands that made them. A view listens to the changes.
//
// The placement is a second, temporary list of entities: an item as it will be drawn, about the origin. Views
// show it at the mouse while a point is picked.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "devhost/drawing/DrawingHistory.h"
#include "devhost/drawing/Entity.h"

namespace devhost {

class CDrawing {
public:
    // Adds an entity. False, with nothing added, when a number is not finite or beyond kLargestNumber, or a
    // radius, a height or the number of points is too small.
    bool Add(Entity entity);
    void Clear();

    const std::vector<Entity>& Entities() const { return m_entities; }

    // Starts a command: what one Undo takes back. RevertCommand undoes what the command has changed so far;
    // Redo does not bring it back.
    void BeginCommand() { m_history.BeginCommand(); }
    void RevertCommand();
    bool CanUndo() const { return m_history.CanUndo(); }
    bool CanRedo() const { return m_history.CanRedo(); }
    void Undo();
    void Redo();

    // From BeginPlacement to EndPlacement, entities are added to the placement, which is empty at first, and
    // Clear does nothing.
    void BeginPlacement();
    void EndPlacement() { m_isPlacing = false; }
    void ClearPlacement() { m_placement.clear(); }
    const std::vector<Entity>& Placement() const { return m_placement; }

    // The bounding box; nothing for an empty drawing. The length of a text is an upper estimate, since the
    // font is not known here.
    std::optional<Box> Extents() const;

    // Called after each change of the entities, not of the placement. An empty function removes it.
    void SetListener(std::function<void()> onChanged) { m_onChanged = std::move(onChanged); }

private:
    void NotifyListener() const;

    std::vector<Entity> m_entities;
    std::vector<Entity> m_placement;
    CDrawingHistory m_history;
    bool m_isPlacing = false;
    std::function<void()> m_onChanged;
};

}  // namespace devhost
