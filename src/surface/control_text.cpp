#include "surface/control_text.h"

namespace surface {

using controls::OverlayControl;

QString controlName(const OverlayControl &control)
{
    QString name = QLatin1String(control.family().caption);
    const variables::VariableTable &table = control.host().catalogue().live;
    const qint32 variable = control.takesVariable() ? std::get<qint32>(control.read("curVarID")) : 0;
    if (variable > 0 && variable < table.size())
        name += QStringLiteral(", ") + table[variable].DisplayName;
    return name;
}

QString controlText(const OverlayControl &control)
{
    const QPoint place = control.outerRect().topLeft();
    return QStringLiteral("%1, at %2, %3")
        .arg(controlName(control), QString::number(place.x()), QString::number(place.y()));
}

} // namespace surface
