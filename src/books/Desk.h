#pragma once

#include "books/ActionRights.h"
#include "books/Books.h"

namespace orvane {

/// Where the books are opened: screens, the tools and the demonstration do their saves through one.
class Desk {
public:
    Desk(DataSource& data, const QString& connectionString, BookContext context);

    /// A connection outside any transaction, for reading.
    Connection open() const;
    const BookContext& context() const { return m_context; }

    /// Runs the step in one transaction behind the money gate and commits it with its row in SavedActions, under the
    /// name `action`; a refusal rolls it back. A step that changed nothing and records nothing leaves no row. Raises
    /// DataError, and CommitUnknown when nobody can say whether the commit came through.
    template <typename T>
    Given<T> save(const QString& action, const std::function<Given<T>(Books&)>& step) const {
        std::optional<Given<T>> given;
        run(action, [&](Books& books) {
            if (const std::optional<Refusal> refusal = missingRight(books, action))
                given.emplace(*refusal);
            else
                given.emplace(step(books));
            return bool(*given);
        });
        return *given;
    }

private:
    /// `step` tells whether to commit.
    void run(const QString& action, const std::function<bool(Books&)>& step) const;

    DataSource& m_data;
    QString m_connectionString;
    BookContext m_context;
};

} // namespace orvane
