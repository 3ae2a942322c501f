#pragma once

#include "documents/Workspace.h"
#include "documents/Document.h"
#include "documents/MemoryEdit.h"

#include <memory>
#include <vector>

namespace qly::test {

// A document without a window, over the in-memory buffer.
class FakeDocument final : public documents::Document
{
public:
    explicit FakeDocument(bool explorerInternal) : kindWeb(explorerInternal) {}

    platform::HTMLEdit &txtDoc() override { return edit; }
    QString caption() const override { return m_caption; }
    void setCaption(const QString &caption) override { m_caption = caption; }
    int windowState() const override { return m_state; }
    void setWindowState(int state) override { m_state = state; }
    QRect geometryTwips() const override { return m_geometry; }
    void setGeometryTwips(const QRect &twips) override { m_geometry = twips; }
    int currentTab() const override { return m_tab; }
    void selectTab(int tab) override { m_tab = tab; }
    void activate() override { ++activations; }
    void ShowMyScout(bool) override { ++previews; }

    documents::MemoryEdit edit;
    bool kindWeb;
    int activations = 0;
    int previews = 0;

private:
    QString m_caption;
    int m_state = 0;
    QRect m_geometry{0, 0, 7500, 6000};
    int m_tab = 0;
};

// A workspace of fake documents; the last one made is active.
class FakeWorkspace final : public documents::Workspace
{
public:
    FakeWorkspace();
    ~FakeWorkspace() override;

    documents::Document *activeDocument() const override { return m_active; }
    QList<documents::Document *> documentList() const override;
    documents::Document *makeDocumentWindow(bool explorerInternal) override;
    void unloadDocument(documents::Document *document) override;
    void setPositionText(const QString &text) override { position = text; }

    FakeDocument *document(int i) const { return m_docs.at(size_t(i)).get(); }
    int count() const { return int(m_docs.size()); }
    // Opens a document over `text`, as if typed into a new window.
    FakeDocument *addDocument(const QString &caption, const QString &text, const QString &file = {});

    QString position;
    int unloaded = 0;

private:
    std::vector<std::unique_ptr<FakeDocument>> m_docs;
    FakeDocument *m_active = nullptr;
};

} // namespace qly::test
