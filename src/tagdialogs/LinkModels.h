#pragma once

#include "tagdialogs/TagDialogModel.h"

namespace qly::tagdialogs {

// A link at the current document's selection: "<A HREF=" with the address
// through RelativeLink and AddQuotes, " TARGET=" and the quoted target when
// there is one, ">". A selection is wrapped by the link; otherwise `text`
// follows the tag, then "</A>".
void InsertLinkTag(const QString &url, const QString &target, const QString &text);
// The start tag InsertLinkTag writes.
QString LinkStartTag(const QString &url, const QString &target);

// The text between a link's tags when `selection` is one whole link ("" and
// false otherwise); `href` and `target` receive its attributes.
bool ReadLink(const QString &selection, QString &href, QString &target, QString &text, QStringList &problems);

// frmLink: address, target ("_new" by its tick box), text.
class LinkModel final : public TagDialogModel
{
public:
    QString name() const override { return QStringLiteral("frmLink"); }
    QStringList fieldNames() const override;
    bool accept() override;
    QStringList warnings() const override;
    // True when the selection is plain text that the link wraps (the text
    // field then shows it and cannot be changed).
    bool wrapsSelection() const { return !m_readBack && !m_selection.isEmpty(); }

protected:
    void read(const QString &selection) override;
};

// frmFTPLink, frmNews, frmMail: "<A HREF=", the scheme and the value in
// quotes, ">", the text, "</A>".
class SchemeLinkModel final : public TagDialogModel
{
public:
    enum Kind { Ftp, News, Mail };
    explicit SchemeLinkModel(Kind kind) : m_kind(kind) {}

    QString name() const override;
    QStringList fieldNames() const override;
    bool accept() override;
    QStringList warnings() const override;

    QString scheme() const;          // "ftp://", "news:", "mailto:"
    QString historyName() const;     // "FTP Sites", "UseNet Newsgroups", "E-Mail Addresses"
    QString linkText() const;

protected:
    void read(const QString &selection) override;

private:
    Kind m_kind;
};

} // namespace qly::tagdialogs
