#pragma once

#include "tagdialogs/ui/TagDialog.h"

class QGroupBox;

namespace qly::tagdialogs::ui {

// The thin views of the one-tag dialogs; each model says what is written.

class frmLink final : public TagDialog
{
    Q_OBJECT
public:
    explicit frmLink(QWidget *parent);

protected:
    void loaded() override;

private:
    QComboBox *m_target = nullptr;
    QCheckBox *m_chkNew = nullptr;
    QLineEdit *m_text = nullptr;
};

// frmFTPLink, frmNews and frmMail.
class frmSchemeLink final : public TagDialog
{
    Q_OBJECT
public:
    frmSchemeLink(int kind, QWidget *parent);
};

class frmAnchor final : public TagDialog
{
    Q_OBJECT
public:
    explicit frmAnchor(QWidget *parent);
};

class frmHR final : public TagDialog
{
    Q_OBJECT
public:
    explicit frmHR(QWidget *parent);
};

class frmFont final : public TagDialog
{
    Q_OBJECT
public:
    explicit frmFont(QWidget *parent);
};

class frmBaseFont final : public TagDialog
{
    Q_OBJECT
public:
    explicit frmBaseFont(QWidget *parent);
};

class frmList final : public TagDialog
{
    Q_OBJECT
public:
    frmList(int kind, QWidget *parent);

protected:
    void changed() override;

private:
    QComboBox *m_kind = nullptr;
    QComboBox *m_type = nullptr;
    QLineEdit *m_start = nullptr;
    QGroupBox *m_group = nullptr;
    int m_shownKind = -1;
};

class frmBackSound final : public TagDialog
{
    Q_OBJECT
public:
    explicit frmBackSound(QWidget *parent);
};

} // namespace qly::tagdialogs::ui
