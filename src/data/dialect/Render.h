#pragma once

#include "data/Engine.h"
#include "data/dialect/Lexer.h"

namespace orvane {

/// The text of a name or literal in the words of `engine`.
QString renderName(const Token& name, Engine engine);
QString renderText(const QString& content, Engine engine);

/// The text of the tokens [begin, end) of a statement whose rewriting is done, in the words of `engine`.
QString render(const Tokens& tokens, qsizetype begin, qsizetype end, Engine engine);

} // namespace orvane
