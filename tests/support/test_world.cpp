#include "support/test_world.h"

#include <QDir>

namespace test {

World::World()
{
    const auto folder = [this](const char *name) {
        QDir().mkpath(root.filePath(name));
        return root.filePath(name) + '/';
    };
    state.folders = {folder("program"), folder("data"), folder("temporary"), folder("cache"), {}};
    QDir().mkpath(state.folders.GetAppDataFolder());
    state.stamp = {[] { return QDateTime({2005, 12, 31}, {23, 59}); }, "driver", "pitwall"};
    addVariable(2, "Speed");
    addVariable(3, "Engine speed");
    addVariable(10, "Time stamp");
    for (std::size_t i = 0; i < state.settings.MessageTable.size(); ++i)
        state.settings.MessageTable[i].number = static_cast<quint8>(i);
    state.startMessages = state.settings.MessageTable;
}

void World::addVariable(int index, const QString &name, qint32 group)
{
    variables::VariableRecord &record = state.catalogue.live[index];
    record.IndexNumber = index;
    record.PhysicalName = name.toUpper();
    record.BaseName = name;
    record.Enabled = record.Available = true;
    record.VariableType = group;
    variables::SetupVariables(state.catalogue);
    state.catalogue.staging = state.catalogue.live;
}

} // namespace test
