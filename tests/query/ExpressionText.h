#pragma once

#include "query/WrongTexts.h"

#include "meridane/query/Expression.h"
#include "meridane/query/NumberText.h"

#include <QByteArray>

#include <string>
#include <variant>
#include <vector>

/// The value of a formula as text, or its error with the position in front, such as "3: A number is missing".
inline std::string resultOf(std::string_view text, const meridane::Expression::Context& context = {},
    const std::vector<double>& variables = {2})
{
    const auto parsed = meridane::Expression::parse(text, context);
    if (const auto* const error = std::get_if<meridane::QueryError>(&parsed))
        return wrong_text::messageOf(*error);
    const auto value = std::get<meridane::Expression>(parsed).evaluate(variables);
    if (const auto* const error = std::get_if<meridane::QueryError>(&value))
        return wrong_text::messageOf(*error);
    return meridane::numberText(std::get<double>(value));
}
