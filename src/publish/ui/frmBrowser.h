#pragma once

#include "publish/BrowserModel.h"

#include <QDialog>

class QCheckBox;
class QListWidget;

namespace qly::publish::ui {

// "Choose Browser": picks the browser for this preview, or all of them.
// Tag() is "1" after OK, "0" after Cancel, "" before.
class frmBrowser final : public QDialog
{
    Q_OBJECT
public:
    explicit frmBrowser(QWidget *parent = nullptr);

    QString Tag() const { return m_tag; }
    BrowserModel &model() { return m_model; }

    // Shows the chooser and, on OK, previews as chosen.
    static void choose(QWidget *parent);

private:
    void showRows(int select);
    void cmdOptions_Click(int index);

    BrowserModel m_model;
    QListWidget *m_lstBrowsers = nullptr;
    QCheckBox *m_chkNoChoose = nullptr;
    QCheckBox *m_chkUseAll = nullptr;
    QString m_tag;
};

} // namespace qly::publish::ui
