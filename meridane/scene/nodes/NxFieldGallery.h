#pragma once

#include "meridane/scene/fields/list/NxMFBool.h"
#include "meridane/scene/fields/list/NxMFColor.h"
#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFDouble.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFMatrix.h"
#include "meridane/scene/fields/list/NxMFName.h"
#include "meridane/scene/fields/list/NxMFPlane.h"
#include "meridane/scene/fields/list/NxMFRotation.h"
#include "meridane/scene/fields/list/NxMFShort.h"
#include "meridane/scene/fields/list/NxMFString.h"
#include "meridane/scene/fields/list/NxMFUInt32.h"
#include "meridane/scene/fields/list/NxMFUShort.h"
#include "meridane/scene/fields/list/NxMFVec2f.h"
#include "meridane/scene/fields/list/NxMFVec2i32.h"
#include "meridane/scene/fields/list/NxMFVec2s.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/list/NxMFVec4f.h"
#include "meridane/scene/fields/single/NxSFBitMask.h"
#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFBox2f.h"
#include "meridane/scene/fields/single/NxSFBox3s.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFColorRGBA.h"
#include "meridane/scene/fields/single/NxSFDouble.h"
#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/fields/single/NxSFInt32.h"
#include "meridane/scene/fields/single/NxSFMatrix.h"
#include "meridane/scene/fields/single/NxSFName.h"
#include "meridane/scene/fields/single/NxSFPlane.h"
#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFShort.h"
#include "meridane/scene/fields/single/NxSFString.h"
#include "meridane/scene/fields/single/NxSFTime.h"
#include "meridane/scene/fields/single/NxSFUInt32.h"
#include "meridane/scene/fields/single/NxSFUShort.h"
#include "meridane/scene/fields/single/NxSFVec2f.h"
#include "meridane/scene/fields/single/NxSFVec2i32.h"
#include "meridane/scene/fields/single/NxSFVec2s.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/fields/single/NxSFVec3s.h"
#include "meridane/scene/fields/single/NxSFVec4f.h"
#include "meridane/scene/nodes/NxNode.h"

/// Has one field of every field class, named after it. It draws nothing: it is there to try the editors, and for tests
/// that run over all field classes. The values mean nothing, so any value that the field's class takes is in range.
class NxFieldGallery : public NxNode {
    NX_NODE(NxFieldGallery)

public:
    /// The names of the enumeration fields.
    enum Quality {
        LOW = 0, ///< the first name
        MEDIUM = 1, ///< the second name
        HIGH = 2, ///< the third name
        ULTRA = 5, ///< the last name, with a gap before its value
    };

    /// The bits of the mask field.
    enum Trait {
        VISIBLE = 1, ///< bit 0
        PICKABLE = 2, ///< bit 1
        CASTS_SHADOW = 4, ///< bit 2
        LOCKED = 8, ///< bit 3
        HIGHLIGHTED = 32, ///< bit 5, with a gap before it
    };

    NxSFBitMask sfBitMask{this, {"sfBitMask", "A set of bits with names."}, traits()};
    NxSFBool sfBool{this, {"sfBool", "A boolean."}};
    NxSFBox2f sfBox2f{this, {"sfBox2f", "A rectangle."}};
    NxSFBox3s sfBox3s{this, {"sfBox3s", "A box of 16-bit integers."}};
    NxSFColor sfColor{this, {"sfColor", "A colour.", meridane::softRange(0, 1)}};
    NxSFColorRGBA sfColorRGBA{this, {"sfColorRGBA", "A colour with opacity.", meridane::softRange(0, 1)}};
    NxSFDouble sfDouble{this, {"sfDouble", "A 64-bit number."}};
    NxSFEnum sfEnum{this, {"sfEnum", "One of four names."}, qualities()};
    NxSFFilePathString sfFilePathString{this, {"sfFilePathString", "The path of a file."}};
    NxSFFloat sfFloat{this, {"sfFloat", "A 32-bit number."}};
    NxSFImage sfImage{this, {"sfImage", "A small or large image."}};
    NxSFInt32 sfInt32{this, {"sfInt32", "A 32-bit integer."}};
    NxSFMatrix sfMatrix{this, {"sfMatrix", "A 4 by 4 matrix."}};
    NxSFName sfName{this, {"sfName", "A name."}};
    NxSFPlane sfPlane{this, {"sfPlane", "A plane."}};
    NxSFRotation sfRotation{this, {"sfRotation", "A turn about an axis.", NxUnit::Radians}};
    NxSFShort sfShort{this, {"sfShort", "A 16-bit integer."}};
    NxSFString sfString{this, {"sfString", "A text."}};
    NxSFTime sfTime{this, {"sfTime", "A time.", NxUnit::Seconds}};
    NxSFUInt32 sfUInt32{this, {"sfUInt32", "A 32-bit integer that is never negative."}};
    NxSFUShort sfUShort{this, {"sfUShort", "A 16-bit integer that is never negative."}};
    NxSFVec2f sfVec2f{this, {"sfVec2f", "Two numbers."}};
    NxSFVec2i32 sfVec2i32{this, {"sfVec2i32", "Two 32-bit integers."}};
    NxSFVec2s sfVec2s{this, {"sfVec2s", "Two 16-bit integers."}};
    NxSFVec3f sfVec3f{this, {"sfVec3f", "Three numbers."}};
    NxSFVec3s sfVec3s{this, {"sfVec3s", "Three 16-bit integers."}};
    NxSFVec4f sfVec4f{this, {"sfVec4f", "Four numbers."}};
    NxMFBool mfBool{this, {"mfBool", "Booleans."}};
    NxMFColor mfColor{this, {"mfColor", "Colours.", meridane::softRange(0, 1)}};
    NxMFColorRGBA mfColorRGBA{this, {"mfColorRGBA", "Colours with opacity.", meridane::softRange(0, 1)}};
    NxMFDouble mfDouble{this, {"mfDouble", "64-bit numbers."}};
    NxMFEnum mfEnum{this, {"mfEnum", "Some of four names."}, qualities()};
    NxMFFloat mfFloat{this, {"mfFloat", "32-bit numbers."}};
    NxMFInt32 mfInt32{this, {"mfInt32", "32-bit integers."}};
    NxMFMatrix mfMatrix{this, {"mfMatrix", "4 by 4 matrices."}};
    NxMFName mfName{this, {"mfName", "Names."}};
    NxMFPlane mfPlane{this, {"mfPlane", "Planes."}};
    NxMFRotation mfRotation{this, {"mfRotation", "Turns, each about an axis.", NxUnit::Radians}};
    NxMFShort mfShort{this, {"mfShort", "16-bit integers."}};
    NxMFString mfString{this, {"mfString", "Texts."}};
    NxMFUInt32 mfUInt32{this, {"mfUInt32", "32-bit integers that are never negative."}};
    NxMFUShort mfUShort{this, {"mfUShort", "16-bit integers that are never negative."}};
    NxMFVec2f mfVec2f{this, {"mfVec2f", "Vectors of two numbers."}};
    NxMFVec2i32 mfVec2i32{this, {"mfVec2i32", "Vectors of two 32-bit integers."}};
    NxMFVec2s mfVec2s{this, {"mfVec2s", "Vectors of two 16-bit integers."}};
    NxMFVec3f mfVec3f{this, {"mfVec3f", "Vectors of three numbers."}};
    NxMFVec4f mfVec4f{this, {"mfVec4f", "Vectors of four numbers."}};

    NxFieldGallery();

protected:
    ~NxFieldGallery() override;

private:
    static const NxEnumeration& qualities();
    static const NxEnumeration& traits();
};
