#pragma once

#include "generators/FrameModel.h"

#include <QDialog>

class QCheckBox;
class QLabel;

namespace qly::generators::ui {

class UpDown;

// "Frame Setup": columns or rows, and how many, before the frame editor
// opens on that layout. Its Templates button offers the fixed layouts.
class frmNewFrames final : public QDialog
{
    Q_OBJECT
public:
    explicit frmNewFrames(QWidget *parent = nullptr);

    FrameModel::Orientation orientation() const;
    int count() const;
    QCheckBox *columnsBox() const { return m_check1; }
    QCheckBox *rowsBox() const { return m_check2; }
    UpDown *counter() const { return m_upDown1; }
    QLabel *question() const { return m_question; }

    // The whole command: setup, then the editor.
    static void run(QWidget *parent);

private:
    void showChoice(bool columns);

    QCheckBox *m_check1 = nullptr;
    QCheckBox *m_check2 = nullptr;
    QLabel *m_question = nullptr;
    QLabel *m_picture = nullptr;
    QLabel *m_label5 = nullptr;
    UpDown *m_upDown1 = nullptr;
    bool m_templates = false;
};

} // namespace qly::generators::ui
