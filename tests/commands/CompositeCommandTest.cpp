// Commands made of commands: a MultiCommand's parts and rollback, a CommandPair's order and rollback.
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/commands/CommandPair.h>
#include <ZelmarMediaLib/commands/MultiCommand.h>
#include <ZelmarMediaLib/commands/NullCmd.h>

#include "support/RecordingCommand.h"
#include "support/StubCommandHandler.h"
#include "support/XmlCheck.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ZelmarMediaLib {
namespace {

using test::Log;
using test::RecordingCommand;

typedef test::StubCommandHandler Handler;

// Runs its parts in order; the parts are prepared by the test.
class ScriptedCmd : public MultiCommand {
public:
    static shared_ptr<ScriptedCmd> create(std::vector<shared_ptr<RecordingCommand> > parts) {
        return shared_ptr<ScriptedCmd>(new ScriptedCmd(std::move(parts)));
    }
    ScriptedCmd* clone() const override { return new ScriptedCmd(*this); }
    void xmlName(XMLable::Options& options) const override { *options.stream << "ScriptedCmd"; }
    void xmlAttributes(XMLable::Options&) const override {}
    void xmlBody(XMLable::Options&, int) const override {}

    CommandHandler const* seenHandler = nullptr;

protected:
    void executeCommands(CommandHandler const* handler) override {
        seenHandler = handler;
        for (shared_ptr<RecordingCommand> const& part : parts_)
            execute(part);
    }

private:
    explicit ScriptedCmd(std::vector<shared_ptr<RecordingCommand> > parts) : parts_(std::move(parts)) {}
    ScriptedCmd(ScriptedCmd const&) = default;
    std::vector<shared_ptr<RecordingCommand> > parts_;
};

class CompositeCommandTest : public ::testing::Test {
protected:
    Handler handler;
    CommandHistory history{&handler};
    Log log;

    shared_ptr<RecordingCommand> part(std::string const& name) { return RecordingCommand::create(&log, name); }
};

TEST_F(CompositeCommandTest, MultiCommandKeepsAcceptingPartsAndReplaysThemThroughTheHandlerOfTheCall) {
    shared_ptr<RecordingCommand> a = part("a"), b = part("b"), lazy = part("lazy");
    lazy->accepts = false;  // a part that declines is not kept
    shared_ptr<ScriptedCmd> multi = ScriptedCmd::create({a, b, lazy});
    EXPECT_TRUE(history.execute(multi));
    EXPECT_EQ(&handler, multi->seenHandler);
    EXPECT_EQ(&handler, a->lastHandler);
    EXPECT_EQ(2, multi->numUndoCommands());

    Handler other;
    history.setCommandHandler(&other);
    history.undo();
    history.redo();
    EXPECT_EQ(&other, b->lastHandler);
    EXPECT_EQ(Log({"execute a", "execute b", "execute lazy", "unexecute b", "unexecute a", "reexecute a",
                   "reexecute b"}),
              log);
}

TEST_F(CompositeCommandTest, MultiCommandFailingInItsThirdPartUndoesTheOthersInReverse) {
    shared_ptr<RecordingCommand> broken = part("c");
    broken->executeFailure = RecordingCommand::foreignError;
    shared_ptr<ScriptedCmd> multi = ScriptedCmd::create({part("a"), part("b"), broken});
    EXPECT_THROW(history.execute(multi), std::runtime_error);
    EXPECT_EQ(Log({"execute a", "execute b", "execute c", "unexecute b", "unexecute a"}), log);
    EXPECT_TRUE(history.undoStack().empty());
    EXPECT_EQ(0, multi->numUndoCommands());
}

TEST_F(CompositeCommandTest, MultiCommandWithoutPartsIsRecordedAndUndoesNothing) {
    shared_ptr<ScriptedCmd> empty = ScriptedCmd::create({});
    EXPECT_TRUE(history.execute(empty));
    EXPECT_EQ(1u, history.undoStack().size());
    history.undo();
    history.redo();
    EXPECT_TRUE(log.empty());
}

TEST_F(CompositeCommandTest, ClonedMultiCommandHasItsOwnParts) {
    shared_ptr<ScriptedCmd> multi = ScriptedCmd::create({part("a")});
    history.execute(multi);
    std::unique_ptr<ScriptedCmd> copy(multi->clone());
    EXPECT_EQ(1, copy->numUndoCommands());
    log.clear();
    copy->unexecute(&handler);
    EXPECT_EQ(Log({"unexecute a"}), log);
    EXPECT_EQ(1, multi->numUndoCommands()) << "undoing the copy leaves the original's parts alone";
}

TEST_F(CompositeCommandTest, PairUndoesSecondFirstAndRedoesFirstFirst) {
    shared_ptr<CommandPair> pair = CommandPair::create(part("a"), part("b"));
    history.execute(pair);
    history.undo();
    history.redo();
    EXPECT_EQ(Log({"execute a", "execute b", "unexecute b", "unexecute a", "reexecute a", "reexecute b"}), log);
}

// Regression: only the library's own failures rolled back, so a std::runtime_error (or a
// bad_alloc) from the second half left the first half done.
TEST_F(CompositeCommandTest, PairRollsBackTheFirstWhateverTheSecondThrows) {
    shared_ptr<RecordingCommand> broken = part("b");
    broken->executeFailure = RecordingCommand::libraryError;
    EXPECT_THROW(history.execute(CommandPair::create(part("a"), broken)), ZelmarMediaLibException);
    EXPECT_EQ(Log({"execute a", "execute b", "unexecute a"}), log);

    log.clear();
    broken->executeFailure = RecordingCommand::foreignError;
    EXPECT_THROW(history.execute(CommandPair::create(part("a"), broken)), std::runtime_error);
    EXPECT_EQ(Log({"execute a", "execute b", "unexecute a"}), log);
    EXPECT_TRUE(history.undoStack().empty());
}

// Regression, with the history keeping a command whose undo or redo fails: the command must
// then also leave the model as it was, or a retry would repeat what half of it did.
TEST_F(CompositeCommandTest, FailedUndoOrRedoOfACompositeLeavesItsPartsAsTheyWere) {
    shared_ptr<RecordingCommand> first = part("a");
    history.execute(CommandPair::create(first, part("b")));
    first->unexecuteFailure = RecordingCommand::foreignError;
    log.clear();
    EXPECT_THROW(history.undo(), std::runtime_error);
    EXPECT_EQ(Log({"unexecute b", "unexecute a", "reexecute b"}), log);
    EXPECT_EQ(1u, history.undoStack().size());

    shared_ptr<RecordingCommand> bottom = part("c"), top = part("e");
    shared_ptr<ScriptedCmd> multi = ScriptedCmd::create({bottom, part("d"), top});
    history.execute(multi);
    bottom->unexecuteFailure = RecordingCommand::foreignError;
    log.clear();
    EXPECT_THROW(history.undo(), std::runtime_error);
    EXPECT_EQ(Log({"unexecute e", "unexecute d", "unexecute c", "reexecute d", "reexecute e"}), log);
    EXPECT_EQ(3, multi->numUndoCommands());

    bottom->unexecuteFailure = RecordingCommand::none;
    history.undo();
    top->executeFailure = RecordingCommand::foreignError;
    log.clear();
    EXPECT_THROW(history.redo(), std::runtime_error);
    EXPECT_EQ(Log({"reexecute c", "reexecute d", "reexecute e", "unexecute d", "unexecute c"}), log);
    EXPECT_EQ(0, multi->numUndoCommands());
    EXPECT_EQ(1u, history.redoStack().size());
}

TEST_F(CompositeCommandTest, PairRedoRollsBackTheFirstWhenTheSecondFails) {
    shared_ptr<RecordingCommand> second = part("b");
    history.execute(CommandPair::create(part("a"), second));
    history.undo();
    second->executeFailure = RecordingCommand::libraryError;
    log.clear();
    EXPECT_THROW(history.redo(), ZelmarMediaLibException);
    EXPECT_EQ(Log({"reexecute a", "reexecute b", "unexecute a"}), log);
}

TEST_F(CompositeCommandTest, PairXmlWrapsEachHalfInItsOwnMarkers) {
    shared_ptr<Command> first = NullCmd::create(), second = NullCmd::create();
    shared_ptr<CommandPair> pair = CommandPair::create(first, second);
    std::ostringstream out;
    pair->toXML(out);
    std::string const expected = "<CommandPair id=\"" + std::to_string(pair->xmlIdent()) + "\"  >\n"
                                 "<Command1>\n"
                                 "  <NullCmd id=\"" + std::to_string(first->xmlIdent()) + "\"  >\n"
                                 "  </NullCmd>\n"
                                 "</Command1>\n"
                                 "<Command2>\n"
                                 "  <NullCmd id=\"" + std::to_string(second->xmlIdent()) + "\"  >\n"
                                 "  </NullCmd>\n"
                                 "</Command2>\n"
                                 "</CommandPair>\n";
    EXPECT_EQ(expected, out.str());
    EXPECT_TRUE(test::isWellFormedXml(out.str()));
}

}  // namespace
}  // namespace ZelmarMediaLib
