#include "orvane/extender/OrvShell.h"

#include <QtGlobal>

namespace {

OrvShell* theShell = nullptr;

} // namespace

OrvShell* OrvShell::getInstance()
{
    return theShell;
}

OrvShell::OrvShell()
{
    Q_ASSERT_X(theShell == nullptr, "OrvShell", "there is one shell at a time");
    theShell = this;
}

OrvShell::~OrvShell()
{
    theShell = nullptr;
}
