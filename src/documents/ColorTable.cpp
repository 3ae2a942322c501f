#include "documents/ColorTable.h"

#include "core/Settings.h"

namespace qly::documents {

QString colorKeyOfSlot(int slot)
{
    static const char *const keys[12] = {
        "Default Tag Color", "Attributes", "Unfinished Params", "Values", "Text", "Methods",
        "Properties", "Statements", "Objects", "Text", "Text", "Error",
    };
    return (slot >= 0 && slot < 12) ? QString::fromLatin1(keys[slot]) : QString();
}

platform::ColorTable ColorTableFromSettings()
{
    platform::ColorTable table;
    for (int slot = 0; slot < 12; ++slot) {
        const QString v = core::ReadSetting(QStringLiteral("Editing"), colorKeyOfSlot(slot));
        bool ok = false;
        const int colour = v.toInt(&ok);
        table[slot] = (ok && colour >= 0) ? colour : -1;
    }
    return table;
}

} // namespace qly::documents
