#pragma once

#include "shell/program_state.h"
#include "support/scripted_prompts.h"

#include <QTemporaryDir>

namespace test {

// A fresh world for one test: folders of its own, a small catalogue, a fixed clock, scripted prompts.
struct World
{
    World();

    // A catalogue slot with this name and unit label, enabled and available.
    void addVariable(int index, const QString &name, qint32 group = 1);

    QTemporaryDir root;
    shell::ProgramState state;
    ScriptedPrompts prompts;
};

} // namespace test
