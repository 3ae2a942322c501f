#include "texttools/SpellDictionary.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"

#include <hunspell.hxx>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringDecoder>
#include <QStringEncoder>

namespace qly::texttools {

using namespace qly::core;

namespace {

const QString kSystemFolder = QStringLiteral("/usr/share/hunspell");

QString installHint()
{
    return QStringLiteral("Install a Hunspell dictionary (for American English: sudo apt-get install "
                          "hunspell-en-us) or choose an installed one under Tools > Options > Spelling.");
}

// A .dic file starts with its word count.
bool looksLikeDic(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return false;
    QByteArray first = f.readLine(64).trimmed();
    if (first.startsWith("\xef\xbb\xbf"))
        first = first.mid(3);
    bool ok = false;
    first.toLong(&ok);
    return ok;
}

} // namespace

QStringList DictionaryFolders()
{
    return {JoinPath(ProgramDirectory(), QStringLiteral("dictionaries")), kSystemFolder};
}

QList<DictionaryFiles> InstalledDictionaries()
{
    QList<DictionaryFiles> found;
    QStringList names;
    for (const QString &folder : DictionaryFolders()) {
        const QDir dir(folder);
        for (const QString &dic : dir.entryList({QStringLiteral("*.dic")}, QDir::Files, QDir::Name)) {
            const QString name = QFileInfo(dic).completeBaseName();
            const QString aff = dir.filePath(name + QStringLiteral(".aff"));
            if (names.contains(name) || !QFileInfo::exists(aff))
                continue;
            names << name;
            found << DictionaryFiles{name, aff, dir.filePath(dic)};
        }
    }
    return found;
}

DictionaryFiles MainDictionary()
{
    QString setting = ReadSetting(QStringLiteral("General"), QStringLiteral("Standard Dictionary")).trimmed();
    if (setting.isEmpty())
        setting = QStringLiteral("en_US");
    if (setting.contains(u'/') || setting.endsWith(QLatin1String(".dic"), Qt::CaseInsensitive)) {
        const QString stem = StripExtension(setting);
        return {QFileInfo(stem).fileName(), stem + QStringLiteral(".aff"), stem + QStringLiteral(".dic")};
    }
    for (const DictionaryFiles &d : InstalledDictionaries()) {
        if (d.name == setting)
            return d;
    }
    const QString stem = JoinPath(kSystemFolder, setting);
    return {setting, stem + QStringLiteral(".aff"), stem + QStringLiteral(".dic")};
}

QString CustomDictionaryPath()
{
    const QString setting = ReadSetting(QStringLiteral("General"), QStringLiteral("Custom Dictionary")).trimmed();
    if (!setting.isEmpty())
        return setting;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return JoinPath(JoinPath(data, QStringLiteral("quillery")), QStringLiteral("custom.dic"));
}

SpellChecker::~SpellChecker() = default;

std::unique_ptr<SpellChecker> SpellChecker::open(const DictionaryFiles &files, QString &error)
{
    QStringList missing;
    for (const QString &path : {files.aff, files.dic}) {
        if (!QFileInfo(path).isFile())
            missing << path;
    }
    if (!missing.isEmpty()) {
        error = QStringLiteral("Couldn't find ") + missing.join(QStringLiteral(" and "))
                + QStringLiteral(", a file of the spelling dictionary \"") + files.name + QStringLiteral("\".\n\n")
                + installHint();
        return nullptr;
    }
    if (!looksLikeDic(files.dic)) {
        error = QStringLiteral("The spelling dictionary \"") + files.name + QStringLiteral("\" is damaged: ")
                + files.dic + QStringLiteral(" does not start with its word count.\n\n") + installHint();
        return nullptr;
    }
    std::unique_ptr<SpellChecker> checker(new SpellChecker);
    checker->m_hunspell = std::make_unique<Hunspell>(QFile::encodeName(files.aff).constData(),
                                                    QFile::encodeName(files.dic).constData());
    checker->m_name = files.name;
    checker->m_encoding = QByteArray::fromStdString(checker->m_hunspell->get_dict_encoding());
    checker->m_utf8 = checker->m_encoding.compare("UTF-8", Qt::CaseInsensitive) == 0;
    return checker;
}

// An 8-bit dictionary is read in its own encoding where Qt knows it, else
// as ISO 8859-1.
std::string SpellChecker::encode(const QString &word) const
{
    if (m_utf8)
        return word.toStdString();
    QStringEncoder encoder(m_encoding.constData());
    return encoder.isValid() ? QByteArray(encoder(word)).toStdString() : word.toLatin1().toStdString();
}

QString SpellChecker::decode(const std::string &word) const
{
    if (m_utf8)
        return QString::fromStdString(word);
    const QByteArray bytes = QByteArray::fromStdString(word);
    QStringDecoder decoder(m_encoding.constData());
    return decoder.isValid() ? QString(decoder(bytes)) : QString::fromLatin1(bytes);
}

bool SpellChecker::check(const QString &word) const
{
    // A word the dictionary's 8-bit encoding cannot hold is not in it.
    if (!m_utf8 && decode(encode(word)) != word)
        return false;
    return m_hunspell->spell(encode(word));
}

QStringList SpellChecker::suggest(const QString &word) const
{
    QStringList out;
    for (const std::string &s : m_hunspell->suggest(encode(word)))
        out << decode(s);
    return out;
}

void SpellChecker::accept(const QString &word)
{
    m_hunspell->add(encode(word));
}

CustomDictionary::CustomDictionary(const QString &path)
    : m_path(path)
{
    QByteArray bytes;
    if (!readWholeFile(path, bytes).ok())
        return;
    for (const QString &line : QString::fromUtf8(bytes).split(u'\n')) {
        const QString word = line.trimmed();
        if (!word.isEmpty())
            m_words << word;
    }
}

bool CustomDictionary::add(const QString &word)
{
    if (m_words.contains(word))
        return true;
    m_words << word;
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    return writeFileAtomically(m_path, (m_words.join(u'\n') + u'\n').toUtf8()).ok();
}

} // namespace qly::texttools
