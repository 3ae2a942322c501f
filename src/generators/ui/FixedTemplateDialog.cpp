#include "generators/ui/FixedTemplateDialog.h"

#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"
#include "generators/TableFramePreview.h"
#include "generators/ui/LayoutPicture.h"

#include <QGridLayout>
#include <QPushButton>
#include <QToolButton>

namespace qly::generators::ui {

FixedTemplateDialog::FixedTemplateDialog(const QString &title, const QString &stem, const QStringList &captions,
                                         const QList<QIcon> &pictures, QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags), m_stem(stem)
{
    setWindowTitle(title);
    auto *layout = new QGridLayout(this);
    for (int i = 0; i < int(captions.size()); ++i) {
        auto *button = new QToolButton(this);
        button->setObjectName(QStringLiteral("cmdTemplate%1").arg(i));
        button->setText(captions.at(i));
        if (i < int(pictures.size())) {
            button->setIcon(pictures.at(i));
            button->setIconSize(QSize(96, 72));
            button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        }
        button->setMinimumWidth(120);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        layout->addWidget(button, i / 3, i % 3);
        connect(button, &QToolButton::clicked, this, [this, i] { cmdTemplate_Click(i); });
    }
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    auto *help = new QPushButton(QStringLiteral("&Help"), this);
    auto *cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    help->setAutoDefault(false);
    buttons->addWidget(help);
    buttons->addWidget(cancel);
    layout->addLayout(buttons, 2, 0, 1, 3);
    connect(help, &QPushButton::clicked, this, [] { core::ui::OpenHelp(); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void FixedTemplateDialog::cmdTemplate_Click(int index)
{
    InsertFixedTemplate(m_stem, index + 1);
    accept();
}

frmTableTemp::frmTableTemp(QWidget *parent)
    : FixedTemplateDialog(QStringLiteral("Table Templates"), QStringLiteral("TableTemplate"),
                          {QStringLiteral("Ad Space"), QStringLiteral("Headline"), QStringLiteral("Calendar"),
                           QStringLiteral("Newspaper"), QStringLiteral("Header/Footer"), QStringLiteral("Navigation")},
                          {}, parent)
{
    setObjectName(QStringLiteral("frmTableTemp"));
}

frmFrameTemp::frmFrameTemp(QWidget *parent)
    : FixedTemplateDialog(QStringLiteral("Frame Templates"), QStringLiteral("FrameTemplate"),
                          {QStringLiteral("3 Column"), QStringLiteral("Header/Footer"), QStringLiteral("Two with Three"),
                           QStringLiteral("Ad Space"), QStringLiteral("Nav. with Headline"), QStringLiteral("Navigation")},
                          {LayoutPicture({{0, 0, 0.25, 1}, {0.25, 0, 0.5, 1}, {0.75, 0, 0.25, 1}}),
                           LayoutPicture({{0, 0, 1, 0.15}, {0, 0.15, 1, 0.7}, {0, 0.85, 1, 0.15}}),
                           LayoutPicture({{0, 0, 0.3, 1}, {0.3, 0, 0.7, 1.0 / 3}, {0.3, 1.0 / 3, 0.7, 1.0 / 3},
                                          {0.3, 2.0 / 3, 0.7, 1.0 / 3}}),
                           LayoutPicture({{0, 0, 1, 0.2}, {0, 0.2, 1, 0.8}}),
                           LayoutPicture({{0, 0, 1, 0.2}, {0, 0.2, 0.25, 0.8}, {0.25, 0.2, 0.75, 0.8}}),
                           LayoutPicture({{0, 0, 0.2, 1}, {0.2, 0, 0.8, 1}})},
                          parent)
{
    setObjectName(QStringLiteral("frmFrameTemp"));
}

} // namespace qly::generators::ui
