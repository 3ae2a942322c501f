#include "texttools/ui/frmFind.h"

#include "core/Settings.h"
#include "core/ui/EscapeWatch.h"
#include "core/ui/Twips.h"
#include "core/Feedback.h"
#include "core/Paths.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "documents/ui/ScintillaEdit.h"
#include "texttools/ui/HitHighlighter.h"

#include <Qsci/qsciscintilla.h>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QUrl>
#include <QVBoxLayout>

namespace qly::texttools::ui {

namespace {

QPointer<frmFind> g_instance;

const QString kSection = QStringLiteral("Find");

} // namespace

frmFind::frmFind(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmFind"));
    setModal(false);
    m_highlighter = new HitHighlighter(this);

    auto *fields = new QGridLayout;
    m_cmbFind = new QComboBox(this);
    m_cmbFind->setObjectName(QStringLiteral("cmbFind"));
    m_cmbFind->setEditable(true);
    m_cmbFind->setInsertPolicy(QComboBox::NoInsert);
    m_cmbFind->setMinimumWidth(m_cmbFind->fontMetrics().averageCharWidth() * 40);
    auto *lblFind = new QLabel(QStringLiteral("Fin&d What:"), this);
    lblFind->setBuddy(m_cmbFind);
    m_cmbReplace = new QComboBox(this);
    m_cmbReplace->setObjectName(QStringLiteral("cmbReplace"));
    m_cmbReplace->setEditable(true);
    m_cmbReplace->setInsertPolicy(QComboBox::NoInsert);
    m_lblReplaceHeading = new QLabel(QStringLiteral("Replace With:"), this);
    m_lblReplaceHeading->setObjectName(QStringLiteral("lblReplaceHeading"));
    fields->addWidget(lblFind, 0, 0);
    fields->addWidget(m_cmbFind, 1, 0);
    fields->addWidget(m_lblReplaceHeading, 2, 0);
    fields->addWidget(m_cmbReplace, 3, 0);

    const QString captions[4] = {QStringLiteral("Search in selectio&n"), QStringLiteral("Start From to&p of document"),
                                 QStringLiteral("Match &whole word only"), QStringLiteral("Case &sensitive")};
    auto *options = new QVBoxLayout;
    for (int i = 0; i < 4; ++i) {
        m_chkOptions[i] = new QCheckBox(captions[i], this);
        m_chkOptions[i]->setObjectName(QStringLiteral("chkOptions%1").arg(i));
        options->addWidget(m_chkOptions[i]);
        connect(m_chkOptions[i], &QCheckBox::toggled, this, [this] { readFields(); updateHighlight(); });
    }
    m_chkRegex = new QCheckBox(QStringLiteral("Regular e&xpression"), this);
    m_chkRegex->setObjectName(QStringLiteral("chkRegex"));
    m_chkRegex->setToolTip(QStringLiteral("The search text is a regular expression; \\1 to \\9 in the replacement "
                                          "stand for its groups"));
    options->addWidget(m_chkRegex);
    connect(m_chkRegex, &QCheckBox::toggled, this, [this] { readFields(); updateHighlight(); });
    fields->addLayout(options, 4, 0);

    const QString buttons[4] = {QStringLiteral("&Find First"), QStringLiteral("Replace &All"), QStringLiteral("&Close"),
                                QStringLiteral("&Help")};
    auto *column = new QVBoxLayout;
    for (int i = 0; i < 4; ++i) {
        m_btnOptions[i] = new QPushButton(buttons[i], this);
        m_btnOptions[i]->setObjectName(QStringLiteral("btnOptions%1").arg(i));
        m_btnOptions[i]->setAutoDefault(false);
        column->addWidget(m_btnOptions[i]);
    }
    m_btnOptions[0]->setDefault(true);
    column->addStretch();
    connect(m_btnOptions[0], &QPushButton::clicked, this, &frmFind::onFind);
    connect(m_btnOptions[1], &QPushButton::clicked, this, &frmFind::onReplaceAll);
    connect(m_btnOptions[2], &QPushButton::clicked, this, &frmFind::close);
    connect(m_btnOptions[3], &QPushButton::clicked, this, [] {
        QDesktopServices::openUrl(
            QUrl::fromLocalFile(core::JoinPath(core::ProgramDirectory(), QStringLiteral("help/index.html"))));
    });

    auto *layout = new QHBoxLayout(this);
    layout->addLayout(fields, 1);
    layout->addLayout(column);

    connect(m_cmbFind, &QComboBox::editTextChanged, this, [this](const QString &text) {
        m_model.setFindText(text);
        m_btnOptions[0]->setText(m_model.buttonCaption());
        updateHighlight();
    });
    connect(m_cmbReplace, &QComboBox::editTextChanged, this, [this](const QString &text) {
        m_model.setReplaceText(text);
    });

    bool okLeft = false;
    bool okTop = false;
    const int left = core::ReadSetting(kSection, QStringLiteral("Left")).toInt(&okLeft);
    const int top = core::ReadSetting(kSection, QStringLiteral("Top")).toInt(&okTop);
    if (okLeft && okTop) {
        // Kept on the screen, which may have shrunk or changed its scale since.
        QPoint at(core::ui::fromTwips(left, this), core::ui::fromTwips(top, this));
        if (const QScreen *screen = this->screen()) {
            const QRect room = screen->availableGeometry();
            const QSize size = sizeHint();
            at.setX(std::clamp(at.x(), room.left(), std::max(room.left(), room.right() - size.width())));
            at.setY(std::clamp(at.y(), room.top(), std::max(room.top(), room.bottom() - size.height())));
        }
        move(at);
    }
}

frmFind::~frmFind() = default;

frmFind &frmFind::instance(QWidget *parent)
{
    if (!g_instance)
        g_instance = new frmFind(parent);
    return *g_instance;
}

frmFind *frmFind::existing()
{
    return g_instance;
}

platform::HTMLEdit *frmFind::currentEdit() const
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    return doc ? &doc->txtDoc() : nullptr;
}

void frmFind::showGuise(const QString &guise)
{
    m_model.setGuise(guise);
    // The histories of earlier sessions.
    fillHistory(m_cmbFind, m_model.findHistory());
    fillHistory(m_cmbReplace, m_model.replaceHistory());
    // A selection within one line is what the user wants to look for.
    if (platform::HTMLEdit *edit = currentEdit()) {
        const QString sel = edit->SelText();
        if (!sel.isEmpty() && !sel.contains(u'\n') && !sel.contains(u'\r') && sel.size() < 200)
            m_cmbFind->setEditText(sel);
    }
    applyGuise();
    show();
    raise();
    activateWindow();
    m_cmbFind->setFocus();
    m_cmbFind->lineEdit()->selectAll();
    updateHighlight();
}

void frmFind::applyGuise()
{
    const bool replacing = m_model.replaceGuise();
    setWindowTitle(m_model.title());
    m_lblReplaceHeading->setVisible(replacing);
    m_cmbReplace->setVisible(replacing);
    m_btnOptions[1]->setVisible(replacing);
    m_btnOptions[0]->setText(m_model.buttonCaption());
    // The Find guise is shorter: the hidden field gives its room back.
    layout()->activate();
    resize(sizeHint());
}

void frmFind::readFields()
{
    m_model.setFindText(m_cmbFind->currentText());
    m_model.setReplaceText(m_cmbReplace->currentText());
    for (int i = 0; i < 4; ++i)
        m_model.setOption(FindModel::Option(i), m_chkOptions[i]->isChecked());
    m_model.setRegex(m_chkRegex->isChecked());
}

void frmFind::fillHistory(QComboBox *box, const QStringList &history)
{
    const QString text = box->currentText();
    const QSignalBlocker block(box);
    box->clear();
    box->addItems(history);
    box->setEditText(text);
}

void frmFind::onFind()
{
    readFields();
    m_model.rememberFind(m_model.findText());
    fillHistory(m_cmbFind, m_model.findHistory());
    platform::HTMLEdit *edit = currentEdit();
    if (!edit)
        return;
    if (m_model.replaceGuise()) {
        m_model.rememberReplace(m_model.replaceText());
        fillHistory(m_cmbReplace, m_model.replaceHistory());
        m_model.Replace(*edit, FindModel::Mode::One);
    } else {
        m_model.FindNext(*edit);
    }
    m_btnOptions[0]->setText(m_model.buttonCaption());
    activateWindow();   // the dialog keeps the focus
}

void frmFind::onReplaceAll()
{
    readFields();
    m_model.rememberFind(m_model.findText());
    m_model.rememberReplace(m_model.replaceText());
    fillHistory(m_cmbFind, m_model.findHistory());
    fillHistory(m_cmbReplace, m_model.replaceHistory());
    platform::HTMLEdit *edit = currentEdit();
    if (!edit)
        return;
    core::ui::EscapeWatch escape;
    m_model.Replace(*edit, FindModel::Mode::All, [&escape] {
        core::DoEvents();
        return escape.pressed();
    });
}

void frmFind::findAgain(bool backwards)
{
    platform::HTMLEdit *edit = currentEdit();
    if (!edit)
        return;
    if (m_model.findText().isEmpty()) {
        showGuise(QStringLiteral("f"));
        return;
    }
    m_model.FindNext(*edit, backwards);
    m_btnOptions[0]->setText(m_model.buttonCaption());
}

void frmFind::updateHighlight()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    auto *sci = doc ? dynamic_cast<documents::ui::ScintillaEdit *>(&doc->txtDoc()) : nullptr;
    if (!isVisible() || !sci) {
        m_highlighter->setView(nullptr);
        return;
    }
    m_highlighter->setView(sci->view());
    m_highlighter->setPattern(m_model.pattern(QString()));
}

void frmFind::hideEvent(QHideEvent *event)
{
    m_highlighter->setView(nullptr);
    core::WriteSetting(kSection, QStringLiteral("Left"), QString::number(core::ui::toTwips(pos().x(), this)));
    core::WriteSetting(kSection, QStringLiteral("Top"), QString::number(core::ui::toTwips(pos().y(), this)));
    QDialog::hideEvent(event);
}

} // namespace qly::texttools::ui
