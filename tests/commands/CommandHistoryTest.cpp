// The history's stacks: discipline, the undo limit, combining, restoring and cloning.
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/commands/CommandPair.h>
#include <ZelmarMediaLib/commands/NullCmd.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>

#include "support/CountingObserver.h"
#include "support/RecordingCommand.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

using test::Log;
using test::RecordingCommand;

// Its combine refuses, whatever comes after it.
class Uncombinable : public Command {
public:
    static shared_ptr<Uncombinable> create() { return shared_ptr<Uncombinable>(new Uncombinable); }
    Uncombinable* clone() const override { return new Uncombinable(*this); }
    bool execute(CommandHandler*) override { return true; }
    bool unexecute(CommandHandler*) override { return true; }
    shared_ptr<Command> combine(shared_ptr<Command>) override { throw ZelmarMediaLibException("no combining"); }
    void xmlName(XMLable::Options& options) const override { *options.stream << "Uncombinable"; }
    void xmlAttributes(XMLable::Options&) const override {}
    void xmlBody(XMLable::Options&, int) const override {}

private:
    Uncombinable() = default;
    Uncombinable(Uncombinable const&) = default;
};

class CommandHistoryTest : public ::testing::Test {
protected:
    CommandHistory history{nullptr};
    Log log;
    test::CountingObserver observer;

    void SetUp() override { history.attach(&observer); }

    shared_ptr<RecordingCommand> run(std::string const& name) {
        shared_ptr<RecordingCommand> command = RecordingCommand::create(&log, name);
        history.execute(command);
        return command;
    }

    std::vector<std::string> names(CommandHistory::CommandList const& stack) const {
        std::vector<std::string> result;
        for (shared_ptr<Command> const& command : stack) {
            auto recording = dynamic_pointer_cast<RecordingCommand>(command);
            result.push_back(recording ? recording->name : "?");
        }
        return result;
    }
    typedef std::vector<std::string> Names;
};

TEST_F(CommandHistoryTest, UndoAndRedoMoveCommandsBetweenTheStacksAndANewCommandClearsRedo) {
    run("a");
    run("b");
    history.undo();
    EXPECT_EQ(Names({"a"}), names(history.undoStack()));
    EXPECT_EQ(Names({"b"}), names(history.redoStack()));
    history.redo();
    EXPECT_EQ(Names({"a", "b"}), names(history.undoStack()));
    EXPECT_TRUE(history.redoStack().empty());
    EXPECT_EQ(Log({"execute a", "execute b", "unexecute b", "reexecute b"}), log);
    EXPECT_EQ(4, observer.calls);
    history.undo();
    run("c");
    EXPECT_EQ(Names({"a", "c"}), names(history.undoStack()));
    EXPECT_TRUE(history.redoStack().empty()) << "a new command throws the redo stack away";
}

TEST_F(CommandHistoryTest, DecliningOrFailingCommandLeavesBothStacksAndObserversAlone) {
    run("a");
    history.undo();
    int const callsBefore = observer.calls;
    shared_ptr<RecordingCommand> lazy = RecordingCommand::create(&log, "lazy");
    lazy->accepts = false;
    EXPECT_FALSE(history.execute(lazy));
    EXPECT_TRUE(history.undoStack().empty());
    EXPECT_EQ(Names({"a"}), names(history.redoStack()));
    EXPECT_EQ(callsBefore, observer.calls);

    shared_ptr<RecordingCommand> broken = RecordingCommand::create(&log, "broken");
    broken->executeFailure = RecordingCommand::libraryError;
    EXPECT_THROW(history.execute(broken), ZelmarMediaLibException);
    EXPECT_TRUE(history.undoStack().empty());
    EXPECT_EQ(Names({"a"}), names(history.redoStack())) << "a failing command keeps the redo stack too";
}

TEST_F(CommandHistoryTest, EmptyStacksRefuseWithTheirTexts) {
    auto expectRefusal = [](void (CommandHistory::*step)(), CommandHistory& h, char const* text) {
        try {
            (h.*step)();
            ADD_FAILURE() << "nothing was raised";
        } catch (ZelmarMediaLibException const& error) {
            EXPECT_STREQ(text, error.what());
        }
    };
    expectRefusal(&CommandHistory::undo, history, "no commands to undo");
    expectRefusal(&CommandHistory::redo, history, "no commands to redo");
}

// Regression: a command left its stack before it ran, so one whose undo or redo raised was on
// neither stack afterwards, and the history lost an edit.
TEST_F(CommandHistoryTest, CommandWhoseUndoOrRedoFailsStaysWhereItWas) {
    run("a");
    shared_ptr<RecordingCommand> stubborn = run("stubborn");
    stubborn->unexecuteFailure = RecordingCommand::libraryError;
    std::string const before = history.description();
    int const callsBefore = observer.calls;
    EXPECT_THROW(history.undo(), ZelmarMediaLibException);
    EXPECT_EQ(before, history.description());
    EXPECT_EQ(callsBefore, observer.calls);

    stubborn->unexecuteFailure = RecordingCommand::none;
    history.undo();
    stubborn->executeFailure = RecordingCommand::foreignError;
    EXPECT_THROW(history.redo(), std::runtime_error);
    EXPECT_EQ(Names({"a"}), names(history.undoStack()));
    EXPECT_EQ(Names({"stubborn"}), names(history.redoStack()));
}

TEST_F(CommandHistoryTest, UndoLimitDropsFromTheBottomButRedoMayExceedIt) {
    history.setUndoLimit(2);
    run("a");
    run("b");
    run("c");
    EXPECT_EQ(Names({"b", "c"}), names(history.undoStack()));
    history.undo();
    run("d");
    history.undo();
    EXPECT_EQ(Names({"b"}), names(history.undoStack()));
    history.setUndoLimit(5);
    run("e");
    run("f");
    history.setUndoLimit(3);
    EXPECT_EQ(Names({"b", "e", "f"}), names(history.undoStack()));
    history.undo();
    history.setUndoLimit(1);
    history.redo();
    EXPECT_EQ(Names({"e", "f"}), names(history.undoStack()));
}

TEST_F(CommandHistoryTest, LimitZeroRunsCommandsButKeepsNothingAndNegativeMeansNoLimit) {
    run("a");
    history.setUndoLimit(0);
    EXPECT_TRUE(history.undoStack().empty());
    run("b");
    EXPECT_EQ(Log({"execute a", "execute b"}), log);
    EXPECT_TRUE(history.undoStack().empty());
    history.setUndoLimit(-5);
    for (int i = 0; i < 4; ++i)
        run("n");
    EXPECT_EQ(4u, history.undoStack().size());
    EXPECT_EQ(-5, history.undoLimit());
}

TEST_F(CommandHistoryTest, CombineMergesTheTopTwoIntoAPairWithoutRunningThem) {
    run("a");
    history.combineLastCommands();
    EXPECT_EQ(Names({"a"}), names(history.undoStack()));

    run("b");
    run("c");
    int const callsBefore = observer.calls;
    history.combineLastCommands();
    ASSERT_EQ(2u, history.undoStack().size());
    auto pair = dynamic_pointer_cast<CommandPair>(history.undoStack().back());
    ASSERT_TRUE(pair);
    EXPECT_EQ("b", dynamic_pointer_cast<RecordingCommand>(pair->first())->name);
    EXPECT_EQ("c", dynamic_pointer_cast<RecordingCommand>(pair->second())->name);
    EXPECT_EQ(Log({"execute a", "execute b", "execute c"}), log);
    EXPECT_EQ(callsBefore, observer.calls);
}

// Regression: combining took both commands off the stack first, so a combine that raised
// lost them.
TEST_F(CommandHistoryTest, CombineThatFailsKeepsBothCommands) {
    run("a");
    history.execute(Uncombinable::create());
    run("b");
    std::string const before = history.description();
    EXPECT_THROW(history.combineLastCommands(), ZelmarMediaLibException);
    EXPECT_EQ(before, history.description());
}

// Regression: restoring took each command off before undoing it, so one that raised vanished.
// The commands undone before it stay undone and go to the redo stack, as undo() puts them.
TEST_F(CommandHistoryTest, RestoreThatFailsHalfWayKeepsTheStacksInStepWithTheModel) {
    run("a");
    CommandHistoryState const state = history.state();
    shared_ptr<RecordingCommand> stubborn = run("stubborn");
    run("c");
    stubborn->unexecuteFailure = RecordingCommand::libraryError;
    EXPECT_THROW(history.restoreState(state), ZelmarMediaLibException);
    EXPECT_EQ(Names({"a", "stubborn"}), names(history.undoStack()));
    EXPECT_EQ(Names({"c"}), names(history.redoStack()));

    stubborn->unexecuteFailure = RecordingCommand::none;
    history.restoreState(state);
    EXPECT_EQ(Names({"a"}), names(history.undoStack()));
    EXPECT_TRUE(history.redoStack().empty());
}

TEST_F(CommandHistoryTest, RestoringATakenStateUndoesLaterCommandsAndRestoresItsRedoStack) {
    run("a");
    run("b");
    history.undo();
    CommandHistoryState const state = history.state();
    run("c");
    run("d");
    log.clear();
    history.restoreState(state);
    EXPECT_EQ(Log({"unexecute d", "unexecute c"}), log);
    EXPECT_EQ(Names({"a"}), names(history.undoStack()));
    EXPECT_EQ(Names({"b"}), names(history.redoStack()));
    log.clear();
    history.restoreState(history.state());
    EXPECT_TRUE(log.empty()) << "restoring the current state runs nothing";
    EXPECT_EQ(Names({"b"}), names(history.redoStack()));
}

TEST_F(CommandHistoryTest, RestoringTheStateOfAnEmptyHistoryUndoesEverything) {
    CommandHistoryState const empty = history.state();
    run("a");
    run("b");
    history.undo();
    log.clear();
    history.restoreState(empty);
    EXPECT_EQ(Log({"unexecute a"}), log);
    EXPECT_TRUE(history.undoStack().empty());
    EXPECT_TRUE(history.redoStack().empty());
}

TEST_F(CommandHistoryTest, TopFoundOnlyOnTheRedoStackIsUnrolledThere) {
    run("a");
    run("b");
    run("c");
    history.undo();
    history.undo();
    CommandHistoryState state;
    state.undoTop = history.redoStack().front();  // "c", at the redo stack's bottom
    log.clear();
    history.restoreState(state);
    EXPECT_EQ(Log({"unexecute b"}), log);
    EXPECT_EQ(Names({"a"}), names(history.undoStack()));
    EXPECT_TRUE(history.redoStack().empty());
}

TEST_F(CommandHistoryTest, ForeignStateIsRefusedAndChangesNothing) {
    run("a");
    CommandHistoryState foreign;
    foreign.undoTop = NullCmd::create();
    log.clear();
    testing::internal::CaptureStderr();
    try {
        history.restoreState(foreign);
        FAIL();
    } catch (ValueException<CommandHistoryState> const& error) {
        EXPECT_STREQ("State cannot be restored, cannot find undo top", error.what());
        EXPECT_EQ(foreign.undoTop, error.value().undoTop);
    }
    std::string const printed = testing::internal::GetCapturedStderr();
    EXPECT_EQ(history.description() + "\n", printed);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(Names({"a"}), names(history.undoStack()));
}

TEST_F(CommandHistoryTest, CloneClonesEachCommandOnceButPairsShareTheirHalves) {
    run("a");
    run("b");
    history.combineLastCommands();
    run("c");
    history.undo();
    history.setUndoLimit(7);
    std::unique_ptr<CommandHistory> copy(history.clone());
    EXPECT_EQ(7, copy->undoLimit());
    ASSERT_EQ(1u, copy->undoStack().size());
    ASSERT_EQ(1u, copy->redoStack().size());
    EXPECT_NE(history.redoStack().front(), copy->redoStack().front());
    EXPECT_EQ(Names({"c"}), names(copy->redoStack()));
    auto original = dynamic_pointer_cast<CommandPair>(history.undoStack().front());
    auto cloned = dynamic_pointer_cast<CommandPair>(copy->undoStack().front());
    ASSERT_TRUE(cloned);
    EXPECT_NE(original, cloned);
    EXPECT_EQ(original->first(), cloned->first());
    EXPECT_EQ(original->second(), cloned->second());
}

TEST_F(CommandHistoryTest, XmlListsBothStacksBottomToTop) {
    shared_ptr<Command> first = NullCmd::create();
    shared_ptr<Command> second = NullCmd::create();
    history.execute(first);
    history.execute(second);
    history.undo();
    std::string const id = std::to_string(history.xmlIdent());
    std::string const expected = "<CommandHistory id=\"" + id + "\"  >\n"
                                 " <UndoStack>\n"
                                 "  <NullCmd id=\"" + std::to_string(first->xmlIdent()) + "\"  >\n"
                                 "  </NullCmd>\n"
                                 "</UndoStack>\n"
                                 " <RedoStack>\n"
                                 "  <NullCmd id=\"" + std::to_string(second->xmlIdent()) + "\"  >\n"
                                 "  </NullCmd>\n"
                                 "</RedoStack>\n"
                                 "</CommandHistory>\n";
    EXPECT_EQ(expected, history.description());
    EXPECT_TRUE(test::isWellFormedXml(history.description()));
}

}  // namespace
}  // namespace ZelmarMediaLib
