#pragma once

#include "data/rows/Recordset.h"
#include "forms/Page.h"

namespace orvane {

/// A report as pages of one size, laid out as they are asked for, and the rows behind them. A fault of the engine may
/// come from any call that lays out.
class PageSource {
public:
    virtual ~PageSource() = default;

    /// Whether there is a page of this number, from 0; lays out as far as that takes.
    virtual bool has(int number) = 0;
    /// The page of a number that there is. Before the report is whole, "page n of m" on it leaves m open.
    virtual Page page(int number) = 0;
    virtual int pagesMade() const = 0; ///< laid out so far
    virtual bool isWhole() const = 0;  ///< laid out to its end
    virtual void layOut(int rows) = 0; ///< up to so many rows further
    void finish() {
        while (!isWhole())
            layOut(10'000);
    }

    virtual const Recordset& rows() const = 0;
    virtual QString title() const = 0;
    /// The number format of a column of the rows; empty: none.
    virtual QString format(const QString& column) const = 0;
};

} // namespace orvane
