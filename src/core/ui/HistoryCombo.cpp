#include "core/ui/HistoryCombo.h"

#include "core/HistoryList.h"

#include <QComboBox>
#include <QSignalBlocker>

namespace qly::core::ui {

void FillHistoryCombo(QComboBox *box, const QString &historyName)
{
    const QString text = box->currentText();
    const QSignalBlocker block(box);
    box->clear();
    box->addItems(ReadHistory(historyName));
    box->setEditText(text);
}

void StoreHistoryCombo(QComboBox *box, const QString &historyName)
{
    RememberHistory(historyName, box->currentText());
    FillHistoryCombo(box, historyName);
}

} // namespace qly::core::ui
