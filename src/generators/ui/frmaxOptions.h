#pragma once

#include "generators/AxTag.h"
#include "generators/ui/FieldsDialog.h"

class QRadioButton;

namespace qly::generators::ui {

// "ActiveX Options": the form of the object tag, with a sample that follows
// the choices. OK stores them in [Options].
class frmaxOptions final : public FieldsDialog
{
    Q_OBJECT
public:
    // `sample` is the first known control (ProgID, CLSID, name, server), or
    // empty when there is none.
    frmaxOptions(const QStringList &sample, QWidget *parent = nullptr);
    AxTagOptions options() const;

private:
    QRadioButton *radio(const QString &name, const QString &text, bool on, QWidget *box);
    void showSample();
    bool confirm() override;

    QStringList m_sample;
    QRadioButton *m_optClassID, *m_optProgID, *m_optInsert, *m_optObject, *m_optMixed, *m_optCaps, *m_optLower,
        *m_optSingle, *m_optMulti;
    QLineEdit *m_txtWidth, *m_txtHeight, *m_txtCode;
    QCheckBox *m_chkCode;
    QPlainTextEdit *m_txtPreview;
};

} // namespace qly::generators::ui
