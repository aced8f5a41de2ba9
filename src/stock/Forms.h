#pragma once

namespace orvane {

class Program;

/// Stock and price lists.
void registerStockForms(Program& program);

} // namespace orvane
