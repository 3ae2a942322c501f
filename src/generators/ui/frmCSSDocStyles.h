#pragma once

#include "generators/DocumentStyles.h"

#include <QDialog>

class QCheckBox;
class QListWidget;
class QListWidgetItem;

namespace qly::platform {
class HTMLEdit;
}

namespace qly::generators::ui {

// "Document Styles": which library styles the page's style block holds.
// OK rewrites the block.
class frmCSSDocStyles final : public QDialog
{
    Q_OBJECT
public:
    frmCSSDocStyles(platform::HTMLEdit &edit, QWidget *parent = nullptr);

    // Ticks or unticks a style as a click does; false when it is not listed.
    bool tick(const QString &name, bool on);
    QStringList ticked() const;
    QStringList listed() const;
    void accept() override;

private:
    void fill();
    void itemChanged(QListWidgetItem *item);

    platform::HTMLEdit &m_edit;
    DocumentStyles m_doc;
    QStringList m_ticked;
    QListWidget *m_chkStyleList = nullptr;
    QCheckBox *m_chkDocOnly = nullptr;
    QCheckBox *m_chkGeneric = nullptr;
    QCheckBox *m_chkHtml = nullptr;
    QCheckBox *m_chkAppStyle = nullptr;
    bool m_filling = false;
    bool m_askedAboutImport = false;
};

} // namespace qly::generators::ui
