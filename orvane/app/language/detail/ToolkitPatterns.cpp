#include "orvane/app/language/detail/ToolkitPatterns.h"

#include <QtGlobal>

#include <array>

namespace orvane {
namespace {

constexpr std::array toolkitSentences{
    // Problems of a scene.
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "It isn't a finite number.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 numbers isn't a finite number.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 numbers aren't finite numbers.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "It is out of range, %1."), 1},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 numbers is out of range, %3."), 3},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 numbers are out of range, %3."), 3},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 positions are no finite numbers; what they belong to isn't drawn.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "%1 of %2 indices are out of range, from 0 to %3; what they belong to isn't drawn.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "The number of its positions, %1, isn't a multiple of %2; the last ones aren't drawn.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "The number of its indices, %1, isn't a multiple of %2; the last ones aren't drawn.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 normals for %2 positions; drawn as if it had none.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 colours for %2 positions; drawn as if it had none.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "%1 texture coordinates for %2 positions; drawn as if it had none.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 normals has length 0.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 normals have length 0.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 normals doesn't have length 1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 normals don't have length 1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 triangles has no size and can't be seen.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 triangles have no size and can't be seen.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 lines has no size and can't be seen.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 of %2 lines have no size and can't be seen.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The file '%1' doesn't exist.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The file '%1' can't be read: %2.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The file '%1' is in none of the image formats that can be read.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "The file '%1' is broken: it doesn't state the size of its image.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "The file '%1' has %2 by %3 pixels; images of more than %4 pixels, or %5 a side, aren't read.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The file '%1' isn't a regular file.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The file '%1' is empty.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The file '%1' is larger than %2 MiB.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The file '%1' is in no folder, since the scene isn't saved yet.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The file '%1' %2.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "Its image of %1 by %2 pixels is drawn smaller; the GPU takes %3 a side.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "It is on, but its intensity is 0, so it lights nothing.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "It is on, but its colour is black, so it lights nothing.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "It is on, but all parts of its attenuation are 0, so it lights nothing.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "It is on, but the angle of its cone is 0, so it lights nothing.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText",
        "More than %1 lights shine on this and %2 more of its group; those behind the first %3 are left out.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 lights shine on it; those behind the first %2 are left out.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "It has no child of that number, so it shows none; it has %1 child.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "It has no child of that number, so it shows none; it has %1 children.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "%1 more names of this group are those of several children, such as '%2'.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 children of the same group are called '%2'.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "This material and %1 more of its group apply to nothing, since no mesh follows them.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "This texture and %1 more of its group apply to nothing, since no mesh follows them.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "This light and %1 more of its group apply to nothing, since no mesh follows them.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "This complexity and %1 more of its group apply to nothing, since no mesh follows them.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "No mesh follows this material in its group, so it applies to nothing.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "No mesh follows this texture in its group, so it applies to nothing.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "No mesh follows this light in its group, so it applies to nothing.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "No mesh follows this complexity in its group, so it applies to nothing.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A scale factor is 0; what it places is flat or can't be drawn.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Its axis has length 0, so it has no direction.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "Its matrix can't be inverted; what it places is flat or can't be drawn.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "It has no positions to draw.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "It has neither an image nor an image file; surfaces are drawn without it.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "Its far distance isn't greater than its near distance, so it sees nothing.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "It has no children.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Its class isn't known here; it is kept as it is.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "from %1 to %2")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "above %1 and below %2")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "above %1 and at most %2")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "at least %1 and below %2")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "at least %1 and at most %2")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "above %1")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "at least %1")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "below %1")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "at most %1")},
    // How problems are mended, and how bad they are.
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Replace by the default")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Limit to the range")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Set to the default")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Remove what they belong to, and set them to 0")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Remove what they belong to")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Remove the incomplete primitive")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Compute them from the triangles")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Normalise them")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Remove them")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Show no child")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Rename all but the first")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Remove the material")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Remove the texture")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Remove the light")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Remove the complexity")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "information")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "warning")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "error")},
    // Queries.
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "The text is longer than %1 characters, which is the limit of a query.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "An opening bracket is missing for this closing one. Put brackets to search for in quotes.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "A closing bracket is missing for this opening one. Put brackets to search for in quotes.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "More than %1 brackets are within each other, which is the limit of a query.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A word is missing at the end.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "A word is missing before \"%1\". Put it in quotes to search for it.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A value is missing after %1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A word.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The name of a field is missing after f:.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The name of a class is missing after t:, such as t:Mesh.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "Only numbers are greater or less. Texts are compared by = and !=.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Nothing is greater or less than nan. Write =nan to find it.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A text is missing after ~.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The closing / of the regular expression is missing.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A regular expression is missing.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "The query has more than %1 regular expressions, which is the limit.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The closing quote is missing.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has a [ without ].")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has a ( without ).")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has a ) without (.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has bytes that are no text.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has a wrong name in %1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has two repetitions in a row: %1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has %1, which has no meaning.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has %1, which is no range or class of characters.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has %1, but nothing before it to repeat.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression has %1, which isn't supported.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "The regular expression ends in a backslash. Write \\\\ to find one.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "The regular expression repeats too often or the wrong way round: %1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression is too large.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The regular expression is wrong: %1.")},
    // Formulas and numbers.
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "%1 A comma is a decimal sign: separate arguments with a semicolon."), 1},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "The text is longer than %1 characters, which is the limit of a formula.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "A comma is a decimal sign and needs digits after it; arguments are separated by a semicolon.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 has no meaning in a formula.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A number is missing before %1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 can't be used here: a finite number is needed.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Write %1 and what follows it in brackets.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "\"log\" has several meanings: write ln, log2 or log10.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "There is no function %1. There are: %2.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 isn't known here. There are no variables.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 isn't known here. The variables are: %2.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The function %1 needs its argument in brackets: %2.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A sign such as + or * is missing before %1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A multiplication needs its sign: write * before the bracket.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A multiplication needs its sign: write * before %1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Write if(condition; then; otherwise) instead of %1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "\"rad\" is for angles, and this isn't an angle.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 is for angles, and this isn't an angle.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "Two comparisons in a row: write them apart, such as 0 < x and x < 1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "More than %1 brackets are within each other, which is the limit of a formula.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "An opening bracket is missing for this closing one.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A closing bracket is missing for this opening one.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 takes %2 or more arguments, not %3.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 takes %2 or more argument, not %3.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 takes %2 arguments, not %3.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 takes %2 argument, not %3.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "A semicolon separates the arguments of a function, and there is no function here.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Two units in a row: write brackets before %1.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A number or a formula is missing.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A number is missing at the end.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The formula is too long.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The formula can't be evaluated: %1")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 isn't a whole number.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 is %2, which isn't a number to calculate with.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "%1 is out of range: the field takes whole numbers from %2 to %3.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "%1 is out of range: the field takes numbers from %2 to %3.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "A division by 0 has no result.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "The result is infinite, such as the logarithm of 0 or a negative power of 0.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The result is too large for a number.")},
    ToolkitPattern{QT_TRANSLATE_NOOP(
        "ToolkitText", "The result isn't defined, such as 0 divided by 0 or the square root of a negative number.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Digits from 0 to 9 and from a to f are missing after 0x.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "The number %1 is too large.")},
    ToolkitPattern{
        QT_TRANSLATE_NOOP("ToolkitText", "%1 isn't a number: it may have one decimal sign and no other signs.")},
    ToolkitPattern{QT_TRANSLATE_NOOP("ToolkitText", "Signs between thousands can't be read: write %1 for %2.")},
};

} // namespace

std::span<const ToolkitPattern> toolkitPatterns() noexcept
{
    return toolkitSentences;
}

} // namespace orvane
