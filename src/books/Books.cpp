#include "books/Books.h"

#include <cmath>

namespace orvane {

void Books::record(const QString& document, double amount) {
    m_document = document;
    m_amount = amount;
}

void Books::audit(AuditEntry entry) {
    if (!m_context.audit)
        return; // the tools and tests that open the books by themselves
    entry.token = m_token;
    ++m_trailRows;
    m_context.audit(entry);
}

void Books::note(const SavedPart& part) {
    for (SavedPart& known : m_parts) {
        if (known.kind != part.kind || known.document != part.document)
            continue;
        known.counted += part.counted;
        known.amount += part.amount;
        return;
    }
    m_parts.append(part);
}

std::optional<SavedAction> Books::savedAction(const QString& name) const {
    QVector<SavedPart> parts = m_parts;
    parts.removeIf([](const SavedPart& part) { return part.counted == 0 && std::abs(part.amount) < 0.00005; });
    if (m_document.isEmpty() && parts.isEmpty() && m_trailRows == 0)
        return std::nullopt;
    const QString document = m_document.isEmpty() && !parts.isEmpty() ? parts.first().document : m_document;
    return SavedAction{.user = actor().user,
                       .workstation = actor().workstation,
                       .action = name,
                       .document = document,
                       .amount = m_amount,
                       .token = m_token,
                       .trailRows = m_trailRows,
                       .parts = parts};
}

QVariant nullIfEmpty(const QString& text) {
    return text.isEmpty() ? QVariant() : text;
}

} // namespace orvane
