#pragma once

#include "orvane/sdk.h"

#include <string>

/// A value that only the tests know.
struct Angle {
    float degrees = 0;

    friend bool readValue(meridane::TextReader& reader, Angle& angle) { return reader.readNumber(angle.degrees); }
    friend void writeValue(std::string& text, const Angle& angle) { meridane::writeValue(text, angle.degrees); }
    friend bool operator==(const Angle&, const Angle&) = default;
};

/// A value that can't be copied byte by byte.
struct Place {
    std::string name;

    friend bool readValue(meridane::TextReader& reader, Place& place)
    {
        std::string_view word;
        if (!reader.readWord(word, "a place"))
            return false;
        place.name = word;
        return true;
    }
    friend void writeValue(std::string& text, const Place& place) { text += place.name; }
    friend bool operator==(const Place&, const Place&) = default;
};

class SFAngle : public orv::SingleField<Angle> {
    NX_FIELD(SFAngle)

public:
    using SingleField::SingleField;
};

class MFPlace : public orv::ListField<Place> {
    NX_FIELD(MFPlace)

public:
    using ListField::ListField;
};

/// A node with fields of these classes.
class Signpost : public NxTransform {
    NX_NODE(Signpost)

public:
    SFAngle heading{this, {"heading", "Where it points.", meridane::range(0, 360)}, Angle{90}};
    MFPlace places{this, {"places", "What is written on it."}};
    NxSFBool lit{this, {"lit", "Whether it has a lamp."}};
    NxSFColor paint{this, {"paint", "Its colour."}};
    NxSFString text{this, {"text", "What is on its back."}};
};
