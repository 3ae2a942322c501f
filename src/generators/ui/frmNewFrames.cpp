#include "generators/ui/frmNewFrames.h"

#include "core/ui/DialogFlags.h"
#include "generators/ui/FixedTemplateDialog.h"
#include "generators/ui/LayoutPicture.h"
#include "generators/ui/UpDown.h"
#include "generators/ui/frmFrame.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace qly::generators::ui {

frmNewFrames::frmNewFrames(QWidget *parent) : QDialog(parent, core::ui::kDialogFlags)
{
    setWindowTitle(QStringLiteral("Frame Setup"));
    setObjectName(QStringLiteral("frmNewFrames"));
    m_check1 = new QCheckBox(QStringLiteral("Columns"), this);
    m_check2 = new QCheckBox(QStringLiteral("Rows"), this);
    m_question = new QLabel(this);
    m_picture = new QLabel(this);
    m_label5 = new QLabel(QStringLiteral("2"), this);
    m_label5->setObjectName(QStringLiteral("Label5"));
    m_label5->setMinimumWidth(m_label5->fontMetrics().horizontalAdvance(QStringLiteral("000")));
    m_label5->setFrameShape(QFrame::StyledPanel);
    m_label5->setAlignment(Qt::AlignCenter);
    m_upDown1 = new UpDown(0, 10, this);
    m_upDown1->setValue(2);
    connect(m_upDown1, &UpDown::valueChanged, this, [this](int value) { m_label5->setText(QString::number(value)); });
    // The two boxes exclude each other.
    connect(m_check1, &QCheckBox::clicked, this, [this](bool on) { showChoice(on); });
    connect(m_check2, &QCheckBox::clicked, this, [this](bool on) { showChoice(!on); });

    auto *ok = new QPushButton(QStringLiteral("&Next >"), this);
    ok->setDefault(true);
    auto *templates = new QPushButton(QStringLiteral("&Templates..."), this);
    templates->setAutoDefault(false);
    auto *cancel = new QPushButton(QStringLiteral("Cancel"), this);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(templates, &QPushButton::clicked, this, [this] {
        m_templates = true;
        reject();
    });

    auto *layout = new QGridLayout(this);
    layout->addWidget(m_check1, 0, 0);
    layout->addWidget(m_check2, 1, 0);
    layout->addWidget(m_picture, 0, 1, 3, 1);
    layout->addWidget(m_question, 3, 0, 1, 2);
    auto *count = new QHBoxLayout;
    count->addWidget(m_label5);
    count->addWidget(m_upDown1);
    count->addStretch(1);
    layout->addLayout(count, 4, 0, 1, 2);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(templates);
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    layout->addLayout(buttons, 5, 0, 1, 2);
    showChoice(true);
}

void frmNewFrames::showChoice(bool columns)
{
    m_check1->setChecked(columns);
    m_check2->setChecked(!columns);
    m_question->setText(columns ? QStringLiteral("How Many Columns Are Required?")
                                : QStringLiteral("How Many Rows  Are Required?"));
    const QList<QRectF> picture = columns ? QList<QRectF>{{0, 0, 0.5, 1}, {0.5, 0, 0.5, 1}}
                                          : QList<QRectF>{{0, 0, 1, 0.5}, {0, 0.5, 1, 0.5}};
    m_picture->setPixmap(LayoutPicture(picture).pixmap(QSize(96, 72), devicePixelRatioF()));
}

FrameModel::Orientation frmNewFrames::orientation() const
{
    return m_check1->isChecked() ? FrameModel::Orientation::Cols : FrameModel::Orientation::Rows;
}

int frmNewFrames::count() const
{
    return m_label5->text().toInt();
}

void frmNewFrames::run(QWidget *parent)
{
    frmNewFrames setup(parent);
    if (setup.exec() == QDialog::Accepted) {
        frmFrame editor(setup.orientation(), setup.count(), parent);
        editor.exec();
    } else if (setup.m_templates) {
        frmFrameTemp templates(parent);
        templates.exec();
    }
}

} // namespace qly::generators::ui
