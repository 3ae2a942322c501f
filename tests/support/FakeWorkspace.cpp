#include "FakeWorkspace.h"

namespace qly::test {

FakeWorkspace::FakeWorkspace()
{
    documents::Workspace::setInstance(this);
}

FakeWorkspace::~FakeWorkspace()
{
    documents::Workspace::setInstance(nullptr);
}

QList<documents::Document *> FakeWorkspace::documentList() const
{
    QList<documents::Document *> out;
    for (const auto &d : m_docs)
        out << d.get();
    return out;
}

documents::Document *FakeWorkspace::makeDocumentWindow(bool explorerInternal)
{
    m_docs.push_back(std::make_unique<FakeDocument>(explorerInternal));
    m_active = m_docs.back().get();
    return m_active;
}

void FakeWorkspace::unloadDocument(documents::Document *document)
{
    for (auto it = m_docs.begin(); it != m_docs.end(); ++it) {
        if (it->get() == document) {
            m_docs.erase(it);
            ++unloaded;
            break;
        }
    }
    m_active = m_docs.empty() ? nullptr : m_docs.back().get();
}

FakeDocument *FakeWorkspace::addDocument(const QString &caption, const QString &text, const QString &file)
{
    auto *doc = static_cast<FakeDocument *>(makeDocumentWindow(false));
    doc->setCaption(caption);
    doc->LocalFileName = file;
    doc->edit.setText(text);
    return doc;
}

} // namespace qly::test
