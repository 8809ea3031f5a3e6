// The whole command path of a project: observer check, write lock, delay, history.
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/commands/NullCmd.h>
#include <ZelmarMediaLib/project/Project.h>

#include <benchmark/benchmark.h>

namespace {

namespace zml = ZelmarMediaLib;

void BM_ProjectExecuteAndUndoOfNullCmd(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    zml::shared_ptr<zml::Command> command = zml::NullCmd::create();
    for (auto _ : state) {
        project->execute(command);
        project->undo();
    }
}
BENCHMARK(BM_ProjectExecuteAndUndoOfNullCmd);

void BM_ProjectExecuteAndUndoWithAHistoryOf1000(benchmark::State& state) {
    zml::shared_ptr<zml::Project> project = zml::Project::create(30, 1);
    for (int i = 0; i < 1000; ++i)
        project->execute(zml::NullCmd::create());
    zml::shared_ptr<zml::Command> command = zml::NullCmd::create();
    for (auto _ : state) {
        project->execute(command);
        project->undo();
    }
}
BENCHMARK(BM_ProjectExecuteAndUndoWithAHistoryOf1000);

}  // namespace
