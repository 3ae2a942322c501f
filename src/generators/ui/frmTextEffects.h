#pragma once

#include "generators/TextEffectsModel.h"
#include "generators/ui/FieldsDialog.h"

#include <QMap>

class QRadioButton;
class QSlider;
class QTabWidget;

namespace qly::generators::ui {

class PreviewPane;

// "Text Effects": one tab per effect with its own fields over the common
// text, font, colour and speed fields. OK gives the applet text.
class frmTextEffects final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmTextEffects(QWidget *parent = nullptr);

    // The model as the fields now stand.
    TextEffectsModel model() const;
    // CreateApplet on the fields; an empty text field receives the maker's text.
    QString appletText();
    // Shows the page with the applet in the dialog; it then follows the fields.
    void preview();
    PreviewPane *previewPane() const { return m_preview; }

private:
    QWidget *effectPage(const QString &effect);
    void checkNumber(QLineEdit *edit);
    void followChanges();
    bool confirm() override;

    TextEffectsModel m_size;   // keeps the applet size between the size dialog's visits
    QTabWidget *m_ssTabs = nullptr;
    QLineEdit *m_txtStringCenter = nullptr, *m_txtSpeed = nullptr, *m_txtMinFont = nullptr;
    QComboBox *m_cmbFontName = nullptr, *m_cmbFontsize = nullptr, *m_cmbAlignment = nullptr, *m_cmbAlign = nullptr;
    QCheckBox *m_bold = nullptr, *m_italic = nullptr, *m_chkSpearmint = nullptr, *m_chkGradient = nullptr;
    QCheckBox *m_chkBorder = nullptr, *m_chkBorder3D = nullptr;
    QPushButton *m_foreground = nullptr, *m_background = nullptr, *m_imgBorderColor = nullptr;
    PreviewPane *m_preview = nullptr;
    QRadioButton *m_optYes = nullptr;
    QSlider *m_sldSpeed = nullptr;
    QMap<QString, QLineEdit *> m_fields;
};

} // namespace qly::generators::ui
