#include "books/Books.h"

namespace orvane {

void Books::record(const QString& document, double amount) {
    m_document = document;
    m_amount = amount;
}

QVariant nullIfEmpty(const QString& text) {
    return text.isEmpty() ? QVariant() : text;
}

} // namespace orvane
