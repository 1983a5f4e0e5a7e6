#pragma once

#include <cstddef>

#include <muParserBase.h>

namespace meridane {

/// The parser and evaluator of formulas: the library without its own functions, constants and ways to write numbers,
/// so that a formula means the same in every locale.
class FormulaParser final : public mu::ParserBase {
public:
    FormulaParser();

    /// Binds the variable of that index. A row of many is at that row after the address.
    void bind(std::size_t index, const double* value);

private:
    void InitCharSets() override;
    void InitFun() override;
    void InitConst() override;
    void InitOprt() override;
};

} // namespace meridane
