#pragma once
// Test helpers that prove the document invariants of any command run on a project: undo
// gives back the document byte for byte, redo gives back the edited one, and a refusal
// changes neither the document nor the history.
#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/datatypes/NotifyDelay.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/project/Project.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace ZelmarMediaLib {
namespace test {

// A command whose redo makes fresh model objects writes new ids: then the ids are compared
// only on the way back by undo.
enum class RedoIds { same, fresh };

inline std::string projectXml(Project const& project) {
    std::ostringstream out;
    project.toXML(out);
    return out.str();
}

// The document with every id replaced by the same mark.
inline std::string withoutIds(std::string const& xml) {
    static std::string const opening = " id=\"";
    std::string result;
    result.reserve(xml.size());
    std::string::size_type position = 0;
    for (;;) {
        std::string::size_type const found = xml.find(opening, position);
        if (found == std::string::npos)
            break;
        std::string::size_type digitsEnd = found + opening.size();
        while (digitsEnd < xml.size() && xml[digitsEnd] >= '0' && xml[digitsEnd] <= '9')
            ++digitsEnd;
        bool const isId = digitsEnd > found + opening.size() && digitsEnd < xml.size() && xml[digitsEnd] == '"';
        result.append(xml, position, found - position);
        result += isId ? opening + "#\"" : xml.substr(found, digitsEnd - found);
        position = isId ? digitsEnd + 1 : digitsEnd;
    }
    result.append(xml, position, std::string::npos);
    return result;
}

// Both stacks as they stand, by the commands' identity.
struct HistoryShape {
    CommandHistory::CommandList undoStack;
    CommandHistory::CommandList redoStack;

    explicit HistoryShape(Project const& project)
        : undoStack(project.commandHistory()->undoStack()), redoStack(project.commandHistory()->redoStack()) {}
    bool operator==(HistoryShape const& other) const {
        return undoStack == other.undoStack && redoStack == other.redoStack;
    }
};

// Runs the command on the project, which it must accept, then walks undo and redo twice:
// each undo must give back the document as it was before, ids included, and each redo the
// document as the command left it. The project is left with the command done.
inline void expectCommandInvariants(Project& project, shared_ptr<Command> const& command,
                                    RedoIds redoIds = RedoIds::same) {
    std::string const before = projectXml(project);
    ASSERT_TRUE(project.execute(command)) << "the command declined";
    ASSERT_EQ(command, project.commandHistory()->undoStack().back());
    std::string const after = projectXml(project);
    EXPECT_NE(before, after) << "the command changed nothing in the document";
    for (int round = 1; round <= 2; ++round) {
        SCOPED_TRACE(testing::Message() << "undo and redo, round " << round);
        project.undo();
        EXPECT_EQ(before, projectXml(project)) << "undo must give back the document byte for byte";
        project.redo();
        if (redoIds == RedoIds::same)
            EXPECT_EQ(after, projectXml(project)) << "redo must give back the edited document";
        else
            EXPECT_EQ(withoutIds(after), withoutIds(projectXml(project))) << "redo must give back the edited document";
    }
}

namespace detail {

// The refusal left the lock and the delay closed, the document and both stacks as they were,
// and undo and redo still work.
inline void expectProjectUntouched(Project& project, std::string const& before, HistoryShape const& shape) {
    EXPECT_FALSE(project.mutex().hasWriter()) << "the write lock was not released";
    EXPECT_FALSE(NotifyDelay::isActive()) << "the notification delay was not closed";
    EXPECT_EQ(before, projectXml(project)) << "a refused command must leave the document as it was";
    EXPECT_TRUE(shape == HistoryShape(project)) << "a refused command must leave both stacks as they were";
    // The step on top may make fresh objects on its redo, so ids are left out here.
    if (!shape.undoStack.empty()) {
        project.undo();
        project.redo();
        EXPECT_EQ(withoutIds(before), withoutIds(projectXml(project))) << "undo and redo after the refusal";
        EXPECT_TRUE(shape == HistoryShape(project));
    }
}

}  // namespace detail

// The command must raise E with exactly this text, and leave everything as it was.
template <class E>
void expectRefusedCommandLeavesProject(Project& project, shared_ptr<Command> const& command,
                                       std::string const& text) {
    std::string const before = projectXml(project);
    HistoryShape const shape(project);
    try {
        project.execute(command);
        ADD_FAILURE() << "no exception; expected: " << text;
    } catch (E const& error) {
        EXPECT_EQ(text, error.what());
    }
    detail::expectProjectUntouched(project, before, shape);
}

// The command must decline, returning false, and leave everything as it was.
inline void expectDeclinedCommandLeavesProject(Project& project, shared_ptr<Command> const& command) {
    std::string const before = projectXml(project);
    HistoryShape const shape(project);
    EXPECT_FALSE(project.execute(command));
    detail::expectProjectUntouched(project, before, shape);
}

}  // namespace test
}  // namespace ZelmarMediaLib
