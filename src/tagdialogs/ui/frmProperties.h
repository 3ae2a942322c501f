#pragma once

#include "tagdialogs/ui/TagDialog.h"

class QTabWidget;

namespace qly::tagdialogs::ui {

// frmProperties: the document's title and base, its META tags and its
// <BODY> colours, on three tabs. The META tab is shown by its tick.
class frmProperties final : public TagDialog
{
    Q_OBJECT
public:
    enum Tab { General = 0, Meta = 1, Body = 2 };
    explicit frmProperties(QWidget *parent);
    void showTab(Tab tab);
    QTabWidget *tabs() const { return m_tabs; }

protected:
    void loaded() override;
    void changed() override;

private:
    QTabWidget *m_tabs = nullptr;
    QWidget *m_metaPage = nullptr;
    QCheckBox *m_showMeta = nullptr;
    QPlainTextEdit *m_blocks = nullptr;
};

} // namespace qly::tagdialogs::ui
