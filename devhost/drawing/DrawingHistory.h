// What the commands of a user changed in a list of entities, to undo and redo whole commands. The history
// holds entities that are not in the drawing now, and counts of those that are.
#pragma once

#include <cstddef>
#include <vector>

#include "devhost/drawing/Entity.h"

namespace devhost {

class CDrawingHistory {
public:
    // Starts a command; changes before the first one belong to a command of their own.
    void BeginCommand();
    // To be called for each change, after an entity was added and before all are removed.
    void NoteAdded();
    void NoteCleared(std::vector<Entity> entities);

    bool CanUndo() const;
    bool CanRedo() const { return !m_undone.empty(); }
    // Without a command to undo or redo these do nothing.
    void Undo(std::vector<Entity>& entities);
    void Redo(std::vector<Entity>& entities);
    // Undoes the running command, which cannot be redone then.
    void RevertCommand(std::vector<Entity>& entities);

private:
    // Entities were added at the end, or all were removed. `entities` are those that are not in the drawing.
    struct Change {
        bool isClear = false;
        std::size_t added = 0;
        std::vector<Entity> entities;
    };
    using Command = std::vector<Change>;

    Command& Current();
    static void Undo(Command& command, std::vector<Entity>& entities);
    static void Redo(Command& command, std::vector<Entity>& entities);

    std::vector<Command> m_done;  // the last one is running; it may be empty
    std::vector<Command> m_undone;
};

}  // namespace devhost
