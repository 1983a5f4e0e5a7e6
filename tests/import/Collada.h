#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// Models in Collada made by the tests.
namespace collada {

/// A model with a triangle for each of these materials, which are inside of their `phong` element.
inline QByteArray model(const QByteArrayList& materials)
{
    QByteArray effects;
    QByteArray names;
    QByteArray geometries;
    QByteArray nodes;
    for (qsizetype index = 0; index < materials.size(); ++index) {
        const auto numbered
            = [&](const char* text) { return QByteArray(text).replace('#', QByteArray::number(index)); };
        effects += numbered("<effect id='e#'><profile_COMMON><technique sid='c'><phong>") + materials[index]
            + "</phong></technique></profile_COMMON></effect>";
        names += numbered("<material id='m#' name='m#'><instance_effect url='@e#'/></material>");
        geometries += numbered(
            "<geometry id='g#'><mesh><source id='p#'><float_array id='a#' count='9'> "
            "0 0 0 1 0 0 0 1 0</float_array><technique_common><accessor source='@a#' count='3' stride='3'> "
            "<param name='X' type='float'/><param name='Y' type='float'/><param name='Z' type='float'/></accessor> "
            "</technique_common></source><vertices id='v#'><input semantic='POSITION' source='@p#'/></vertices> "
            "<triangles count='1' material='x'><input semantic='VERTEX' source='@v#' offset='0'/><p>0 1 2</p> "
            "</triangles></mesh></geometry>");
        nodes += numbered("<node id='n#' name='n#'><instance_geometry url='@g#'><bind_material><technique_common> "
                          "<instance_material symbol='x' "
                          "target='@m#'/></technique_common></bind_material></instance_geometry></node>");
    }
    const QByteArray model = "<?xml version='1.0'?><COLLADA xmlns='http://www.collada.org/2005/11/COLLADASchema' "
                             "version='1.4.1'><asset><up_axis>Y_UP</up_axis></asset><library_effects>"
        + effects + "</library_effects><library_materials>" + names + "</library_materials><library_geometries>"
        + geometries + "</library_geometries><library_visual_scenes><visual_scene id='s'>" + nodes
        + "</visual_scene></library_visual_scenes><scene><instance_visual_scene url='@s'/></scene></COLLADA>";
    return QByteArray(model).replace('@', '#');
}

/// The opacity of a material.
inline QByteArray transparency(const char* share, const char* mode = "A_ONE")
{
    return QByteArray("<transparent opaque='") + mode + "'><color>1 1 1 1</color></transparent><transparency><float>"
        + share + "</float></transparency>";
}

} // namespace collada
