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

    /// A set of bits with names.
    NxSFBitMask sfBitMask{this, "sfBitMask", traits()};
    /// A boolean.
    NxSFBool sfBool{this, "sfBool"};
    /// A rectangle.
    NxSFBox2f sfBox2f{this, "sfBox2f"};
    /// A box of 16-bit integers.
    NxSFBox3s sfBox3s{this, "sfBox3s"};
    /// A colour, each component from 0 to 1.
    NxSFColor sfColor{this, "sfColor"};
    /// A colour with opacity, each component from 0 to 1.
    NxSFColorRGBA sfColorRGBA{this, "sfColorRGBA"};
    /// A 64-bit number.
    NxSFDouble sfDouble{this, "sfDouble"};
    /// One of four names.
    NxSFEnum sfEnum{this, "sfEnum", qualities()};
    /// The path of a file.
    NxSFFilePathString sfFilePathString{this, "sfFilePathString"};
    /// A 32-bit number.
    NxSFFloat sfFloat{this, "sfFloat"};
    /// A small or large image.
    NxSFImage sfImage{this, "sfImage"};
    /// A 32-bit integer.
    NxSFInt32 sfInt32{this, "sfInt32"};
    /// A 4 by 4 matrix.
    NxSFMatrix sfMatrix{this, "sfMatrix"};
    /// A name.
    NxSFName sfName{this, "sfName"};
    /// A plane.
    NxSFPlane sfPlane{this, "sfPlane"};
    /// An axis, and an angle in radians.
    NxSFRotation sfRotation{this, "sfRotation"};
    /// A 16-bit integer.
    NxSFShort sfShort{this, "sfShort"};
    /// A text.
    NxSFString sfString{this, "sfString"};
    /// A time in seconds.
    NxSFTime sfTime{this, "sfTime"};
    /// A 32-bit integer that is never negative.
    NxSFUInt32 sfUInt32{this, "sfUInt32"};
    /// A 16-bit integer that is never negative.
    NxSFUShort sfUShort{this, "sfUShort"};
    /// Two numbers.
    NxSFVec2f sfVec2f{this, "sfVec2f"};
    /// Two 32-bit integers.
    NxSFVec2i32 sfVec2i32{this, "sfVec2i32"};
    /// Two 16-bit integers.
    NxSFVec2s sfVec2s{this, "sfVec2s"};
    /// Three numbers.
    NxSFVec3f sfVec3f{this, "sfVec3f"};
    /// Three 16-bit integers.
    NxSFVec3s sfVec3s{this, "sfVec3s"};
    /// Four numbers.
    NxSFVec4f sfVec4f{this, "sfVec4f"};
    /// Booleans.
    NxMFBool mfBool{this, "mfBool"};
    /// Colours, each component from 0 to 1.
    NxMFColor mfColor{this, "mfColor"};
    /// Colours with opacity, each component from 0 to 1.
    NxMFColorRGBA mfColorRGBA{this, "mfColorRGBA"};
    /// 64-bit numbers.
    NxMFDouble mfDouble{this, "mfDouble"};
    /// Some of four names.
    NxMFEnum mfEnum{this, "mfEnum", qualities()};
    /// 32-bit numbers.
    NxMFFloat mfFloat{this, "mfFloat"};
    /// 32-bit integers.
    NxMFInt32 mfInt32{this, "mfInt32"};
    /// 4 by 4 matrices.
    NxMFMatrix mfMatrix{this, "mfMatrix"};
    /// Names.
    NxMFName mfName{this, "mfName"};
    /// Planes.
    NxMFPlane mfPlane{this, "mfPlane"};
    /// Axes, each with an angle in radians.
    NxMFRotation mfRotation{this, "mfRotation"};
    /// 16-bit integers.
    NxMFShort mfShort{this, "mfShort"};
    /// Texts.
    NxMFString mfString{this, "mfString"};
    /// 32-bit integers that are never negative.
    NxMFUInt32 mfUInt32{this, "mfUInt32"};
    /// 16-bit integers that are never negative.
    NxMFUShort mfUShort{this, "mfUShort"};
    /// Vectors of two numbers.
    NxMFVec2f mfVec2f{this, "mfVec2f"};
    /// Vectors of two 32-bit integers.
    NxMFVec2i32 mfVec2i32{this, "mfVec2i32"};
    /// Vectors of two 16-bit integers.
    NxMFVec2s mfVec2s{this, "mfVec2s"};
    /// Vectors of three numbers.
    NxMFVec3f mfVec3f{this, "mfVec3f"};
    /// Vectors of four numbers.
    NxMFVec4f mfVec4f{this, "mfVec4f"};

    NxFieldGallery();

protected:
    ~NxFieldGallery() override;

private:
    static const NxEnumeration& qualities();
    static const NxEnumeration& traits();
};
