#pragma once

#include "tagdialogs/TagDialogModel.h"

#include <QList>

namespace qly::tagdialogs {

// frmProperties: the page's title, base, META tags and <BODY> colours, read
// from the whole text of the current document and written back in place.
class PropertiesModel final : public TagDialogModel
{
public:
    QString name() const override { return QStringLiteral("frmProperties"); }
    QStringList fieldNames() const override;
    // Reads the whole text of the current document (not the selection).
    void open() override;
    // Reads a page's text.
    void load(const QString &page);
    bool accept() override;

    struct Box {
        QString title;
        QString text;
    };
    // Writes the changed fields into `page`. Every part that cannot be
    // written gives a box; with any box the caller keeps the old text.
    QList<Box> apply(QString &page) const;

    // The <SCRIPT> and <STYLE> stretches of the head, for display.
    QStringList headBlocks() const { return m_blocks; }
    // The colour fields with their defaults ("C0C0C0", ...).
    static QList<QPair<QString, QString>> colourDefaults();

protected:
    void read(const QString &page) override { load(page); }

private:
    bool changed(const QString &field) const { return value(field) != m_original.value(field); }

    QMap<QString, QString> m_original;   // the fields as the page had them
    QMap<QString, QString> m_otherBody;  // attributes of <BODY> the dialog does not show
    QStringList m_bodyFlags;
    QStringList m_blocks;
};

} // namespace qly::tagdialogs
