#pragma once

namespace orvane {

/// Makes the program usable with screen readers and other assistive programs: they get names, roles and values of what
/// is painted rather than made of widgets, and names of controls that have none. Nothing of it costs time until such a
/// program asks. Call it once, when the application object has been made.
void installAccess();

} // namespace orvane
