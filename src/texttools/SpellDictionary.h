#pragma once

#include <QString>
#include <QStringList>
#include <memory>

class Hunspell;

namespace qly::texttools {

// An installed Hunspell dictionary: a name ("en_US") and its two files.
struct DictionaryFiles {
    QString name;
    QString aff;
    QString dic;
};

// The folders searched for dictionaries: the program's "dictionaries"
// folder, then /usr/share/hunspell.
QStringList DictionaryFolders();
// Every dictionary with both files in those folders, by name.
QList<DictionaryFiles> InstalledDictionaries();

// The main dictionary the settings name: [General] "Standard Dictionary" is
// a ".dic" path or a dictionary's name; empty means en_US. For a name not
// installed, the files it would have in /usr/share/hunspell.
DictionaryFiles MainDictionary();
// [General] "Custom Dictionary", or custom.dic in the user's data folder.
QString CustomDictionaryPath();

// A main dictionary with the user's own words on top.
class SpellChecker
{
public:
    ~SpellChecker();

    // Loads a dictionary; null with `error` saying what is missing or broken
    // and how to get a dictionary.
    static std::unique_ptr<SpellChecker> open(const DictionaryFiles &files, QString &error);

    bool check(const QString &word) const;
    QStringList suggest(const QString &word) const;
    // Accepts `word` from now on (not stored: see CustomDictionary).
    void accept(const QString &word);
    QString name() const { return m_name; }

private:
    SpellChecker() = default;
    std::string encode(const QString &word) const;
    QString decode(const std::string &word) const;

    std::unique_ptr<Hunspell> m_hunspell;
    QString m_name;
    QByteArray m_encoding;
    bool m_utf8 = true;
};

// The user's word list: one word a line, UTF-8.
class CustomDictionary
{
public:
    explicit CustomDictionary(const QString &path);

    QString path() const { return m_path; }
    const QStringList &words() const { return m_words; }
    // Adds a word and rewrites the file atomically, its folder made when
    // missing. False (the word kept for this run) when it cannot be written.
    bool add(const QString &word);

private:
    QString m_path;
    QStringList m_words;
};

} // namespace qly::texttools
