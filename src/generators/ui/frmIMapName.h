#pragma once

#include "generators/ImageMapModel.h"

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace qly::generators::ui {

// "Client-Side Image Map Options": the map's name and the <IMG> element's
// values before the map is written.
class frmIMapName final : public QDialog
{
    Q_OBJECT
public:
    explicit frmIMapName(QWidget *parent = nullptr);

    // True with `values` updated on OK.
    static bool edit(QWidget *parent, MapValues &values);

    void setValues(const MapValues &values);
    MapValues values() const;
    void accept() override;

private:
    QLineEdit *field(const char *name, const QString &label);

    QLineEdit *m_txtMapName = nullptr;
    QLineEdit *m_txtAltText = nullptr;
    QComboBox *m_cmbAlignment = nullptr;
    QLineEdit *m_txtBorder = nullptr;
    QLineEdit *m_txtHorzSpace = nullptr;
    QLineEdit *m_txtVertSpace = nullptr;
    QLineEdit *m_txtImgWidth = nullptr;
    QLineEdit *m_txtImgHeight = nullptr;
};

} // namespace qly::generators::ui
