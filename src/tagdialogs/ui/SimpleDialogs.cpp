#include "tagdialogs/ui/SimpleDialogs.h"

#include "documents/Document.h"
#include "documents/Workspace.h"
#include "platform/HTMLEdit.h"
#include "tagdialogs/FontModels.h"
#include "tagdialogs/LinkModels.h"
#include "tagdialogs/ListModel.h"
#include "tagdialogs/SimpleModels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace qly::tagdialogs::ui {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

QStringList faces()
{
    QStringList list{QString(), S("Arial, Helvetica, sans-serif"), S("Times New Roman, Times, serif"),
                     S("Courier New, Courier, monospace"), S("Georgia, serif"), S("Verdana, sans-serif")};
    list << QFontDatabase::families();
    return list;
}

void numbersOnly(QLineEdit *e)
{
    e->setValidator(new QIntValidator(0, 99999, e));
}

} // namespace

frmLink::frmLink(QWidget *parent)
    : TagDialog(std::make_unique<LinkModel>(), S("Link"), parent)
{
    auto *form = new QFormLayout;
    file(form, S("&URL:"), S("url"), "cmbURL", S("All Files (*.*)|*.*"), S("Documents"), S("Links"));
    m_target = combo(form, S("&Target:"), S("target"), "cmbTarget",
                     {QString(), S("_new"), S("_blank"), S("_top"), S("_parent"), S("_self")}, true);
    m_chkNew = new QCheckBox(S("Open in a &new window (_new)"), this);
    m_chkNew->setObjectName(S("chkNew"));
    form->addRow(QString(), m_chkNew);
    m_text = text(form, S("Te&xt:"), S("text"), "txtText");
    connect(m_chkNew, &QCheckBox::toggled, this, [this](bool on) {
        if (on)
            m_target->setEditText(S("_new"));
        else if (m_target->currentText() == QLatin1String("_new"))
            m_target->setEditText(QString());
    });
    connect(m_target, &QComboBox::currentTextChanged, this, [this](const QString &t) {
        const QSignalBlocker block(m_chkNew);
        m_chkNew->setChecked(t == QLatin1String("_new"));
    });
    finish(form);
}

void frmLink::loaded()
{
    const bool wraps = static_cast<const LinkModel &>(model()).wrapsSelection();
    m_text->setReadOnly(wraps);
    m_text->setToolTip(wraps ? S("The link goes round the selected text.") : QString());
    m_chkNew->setChecked(m_target->currentText() == QLatin1String("_new"));
}

frmSchemeLink::frmSchemeLink(int kind, QWidget *parent)
    : TagDialog(std::make_unique<SchemeLinkModel>(SchemeLinkModel::Kind(kind)),
                QStringList{S("FTP Link"), S("Newsgroup Link"), S("E-mail Link")}.value(kind), parent)
{
    const auto &m = static_cast<const SchemeLinkModel &>(model());
    auto *form = new QFormLayout;
    const QString label = QStringList{S("&FTP site:"), S("&Newsgroup:"), S("&E-mail address:")}.value(kind);
    QComboBox *value = combo(form, label, S("value"), "cmbValue", {}, true, m.historyName());
    value->setToolTip(S("Written after \"%1\"").arg(m.scheme()));
    text(form, S("Te&xt:"), S("text"), "txtText");
    finish(form);
}

frmAnchor::frmAnchor(QWidget *parent)
    : TagDialog(std::make_unique<AnchorModel>(), S("Anchor"), parent)
{
    auto *form = new QFormLayout;
    QStringList names{QString()};
    if (documents::Document *doc = documents::Workspace::CurrentDocument())
        names << AnchorNames(doc->txtDoc().Text());
    combo(form, S("Anchor &name:"), S("name"), "cmbInput", names, true);
    finish(form);
}

frmHR::frmHR(QWidget *parent)
    : TagDialog(std::make_unique<RuleModel>(), S("Horizontal Rule"), parent)
{
    auto *form = new QFormLayout;
    auto *widthRow = new QHBoxLayout;
    QLineEdit *width = text(nullptr, QString(), S("width"), "txtWidth");
    numbersOnly(width);
    widthRow->addWidget(width);
    widthRow->addWidget(check(S("&Percent"), S("percent"), "chkPercent"));
    form->addRow(S("&Width:"), widthRow);
    if (auto *l = qobject_cast<QLabel *>(form->labelForField(widthRow)))
        l->setBuddy(width);
    combo(form, S("&Alignment:"), S("align"), "cmbAlign", RuleModel::alignments(), false);
    numbersOnly(text(form, S("&Size:"), S("size"), "txtSize"));
    form->addRow(QString(), check(S("&No shade"), S("noshade"), "chkNoShade"));
    finish(form);
}

frmFont::frmFont(QWidget *parent)
    : TagDialog(std::make_unique<FontModel>(), S("Font"), parent)
{
    auto *layout = new QVBoxLayout;
    auto *form = new QFormLayout;
    combo(form, S("&Size:"), S("size"), "cmbSize", FontSizes(), false);
    colour(form, S("&Colour:"), S("color"), "txtColor");
    combo(form, S("&Face:"), S("face"), "cmbFace", faces(), true);
    layout->addLayout(form);
    auto *styles = new QGroupBox(S("Style"), this);
    auto *grid = new QGridLayout(styles);
    const char *const captions[] = {"&Bold", "&Emphasis", "S&trong", "&Underline", "&Italic",
                                    "B&link", "Su&perscript", "Subsc&ript", "Bi&g", "S&mall"};
    const QStringList flags = FontModel::styleFlags();
    for (int i = 0; i < flags.size(); ++i) {
        const QByteArray name = "chk" + flags.at(i).toLatin1();
        grid->addWidget(check(S(captions[i]), flags.at(i), name.constData()), i / 2, i % 2);
    }
    grid->addWidget(check(S("Small pri&nt (size -1)"), S("smallprint"), "chkSmallPrint"), 5, 0, 1, 2);
    layout->addWidget(styles);
    finish(layout);
}

frmBaseFont::frmBaseFont(QWidget *parent)
    : TagDialog(std::make_unique<BaseFontModel>(), S("Base Font"), parent)
{
    auto *form = new QFormLayout;
    combo(form, S("&Size:"), S("size"), "cmbSize", FontSizes(), false);
    colour(form, S("&Colour:"), S("color"), "txtColor");
    combo(form, S("&Face:"), S("face"), "cmbFace", faces(), true);
    finish(form);
}

frmList::frmList(int kind, QWidget *parent)
    : TagDialog(std::make_unique<ListModel>(kind), S("List"), parent)
{
    auto *layout = new QVBoxLayout;
    auto *top = new QFormLayout;
    m_kind = new QComboBox(this);
    m_kind->setObjectName(S("cmbKind"));
    m_kind->addItems({S("Bulleted"), S("Numbered"), S("Definition")});
    top->addRow(S("&Kind:"), m_kind);
    layout->addLayout(top);
    m_group = new QGroupBox(this);
    auto *form = new QFormLayout(m_group);
    m_start = text(form, S("First &Number:"), S("start"), "txtStart");
    numbersOnly(m_start);
    m_type = new QComboBox(this);
    m_type->setObjectName(S("cmbType"));
    form->addRow(S("&Type:"), m_type);
    text(form, S("Hea&der:"), S("header"), "txtHeader");
    lines(form, S("&Lines:"), S("lines"), "txtLines");
    layout->addWidget(m_group);
    // The kind is a number in the model, the list's row here.
    connect(m_kind, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    connect(m_type, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    finish(layout);
}

void frmList::changed()
{
    // The model's kind and type are numbers; the lists show names.
    const int kind = m_shownKind < 0 ? model().value(S("kind")).toInt() : m_kind->currentIndex();
    const int type = m_shownKind < 0 || m_shownKind == kind ? model().value(S("type")).toInt()
                                                            : (kind == 0 ? 1 : 0);
    if (m_shownKind != kind) {
        const QSignalBlocker b1(m_kind);
        const QSignalBlocker b2(m_type);
        m_kind->setCurrentIndex(kind);
        m_type->clear();
        m_type->addItems(ListModel::typeNames(kind));
        m_type->setCurrentIndex(type);
        m_type->setEnabled(kind != 2);
        m_start->setEnabled(kind == 1);
        m_group->setTitle(ListModel::title(kind));
        m_shownKind = kind;
    }
    TagDialog::changed();
    model().setValue(S("kind"), QString::number(kind));
    model().setValue(S("type"), QString::number(m_type->currentIndex()));
}

frmBackSound::frmBackSound(QWidget *parent)
    : TagDialog(std::make_unique<BackSoundModel>(), S("Background Sound"), parent)
{
    auto *form = new QFormLayout;
    file(form, S("Sound &file:"), S("file"), "cmbFile",
         S("Sounds (*.mid *.midi *.wav *.au *.mp3 *.ogg)|*.mid;*.midi;*.wav;*.au;*.mp3;*.ogg|All Files (*.*)|*.*"),
         S("Documents"));
    finish(form);
}

} // namespace qly::tagdialogs::ui
