#pragma once

#include "meridane/query/ExpressionContext.h"
#include "meridane/query/detail/ExpressionSource.h"
#include "meridane/query/detail/Functions.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace meridane {

/// A formula that is known to be correct, in the words of `FormulaParser`.
struct Formula {
    std::string text;
    std::vector<bool> uses; ///< for each variable of the context, whether it occurs
    bool namesInfinity = false; ///< `inf` or `nan` occurs
};

/// Reads a formula as people write it, checks all of it and writes it for the parser.
class ExpressionScanner {
public:
    ExpressionScanner(std::string_view original, const ExpressionContext& context);

    [[nodiscard]] std::variant<Formula, QueryError> run();

private:
    /// A bracket that is open; the first one is the formula as a whole.
    struct Level {
        std::size_t position = 0;
        const ExpressionFunction* function = nullptr; ///< whose arguments are in the bracket
        int arguments = 1;
        bool isCompared = false; ///< since the last `and` or `or`
        bool hasComma = false; ///< in one of its own numbers
    };

    bool readOperand();
    bool readOperation();
    bool readNumber();
    bool readOperandWord();
    bool readOperationWord();
    bool readNot(std::size_t length);
    bool readFunction(const ExpressionFunction& function, std::size_t start);
    bool readComparison(std::string_view sign);
    bool open(const ExpressionFunction* function);
    bool close();
    bool readSemicolon();
    bool readPercent();
    bool readDegrees(std::size_t length);
    bool addUnit(std::string_view text, std::size_t length, double (*convert)(double));
    bool finish();

    /// Adds an operand to the formula; an operation follows.
    void addOperand(std::string_view text);
    /// Adds an operation of that many characters; an operand follows.
    bool addOperation(std::string_view text, std::size_t length);
    /// The same for one after which `not` is possible.
    bool addLogic(std::string_view text, std::size_t length);
    bool fail(std::string message);
    bool failAt(std::size_t offset, std::string message);
    bool failAtUnknownWord(std::string_view word);

    const ExpressionContext& m_context;
    ExpressionSource m_source;
    bool m_isTooLong;
    bool m_wantsOperand = true;
    bool m_isNegative = false; ///< the signs before the operand that follows negate it
    bool m_hasUnit = false; ///< the operand before, which is no number, has a unit
    bool m_mayNegate = true; ///< `not` is possible here
    std::vector<Level> m_levels{Level()};
    /// The operand that was read last, if it is a number, which a following `%` or `deg` converts at once.
    std::optional<double> m_literal;
    std::size_t m_literalStart = 0;
    Formula m_formula;
    std::optional<QueryError> m_error;
};

} // namespace meridane
