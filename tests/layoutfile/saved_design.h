#pragma once

#include "layoutfile/layout_bytes.h"
#include "layoutfile/modLoadVGLFiles.h"
#include "layoutfile/modSaveVGLFiles.h"
#include "platform/file_replace.h"
#include "support/design_window.h"

namespace test {

inline QString pathIn(DesignWindow &d, const char *name)
{
    return d.world.root.filePath(QLatin1String(name));
}

inline layoutfile::LayoutBytes save(DesignWindow &d,
                                    layoutfile::SaveKind kind = layoutfile::SaveKind::Command)
{
    shell::ProgramState &state = d.world.state;
    platform::NoProgress progress;
    return layoutfile::layoutBytes(kind, {d.design(), state.catalogue, state.settings, state.fonts,
                                          d.world.prompts, progress, state.stamp, state.screen});
}

inline QByteArray savedDesign(DesignWindow &d) { return save(d).file; }

inline void loadDesign(DesignWindow &d, const QByteArray &file)
{
    const QString path = pathIn(d, "loaded.VGL");
    platform::replaceFile(path, file);
    d.window.files().load(path);
}

} // namespace test
