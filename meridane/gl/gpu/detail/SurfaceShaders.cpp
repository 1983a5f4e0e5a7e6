#include "meridane/gl/gpu/detail/SurfaceShaders.h"

#include "meridane/gl/places/detail/Lights.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <string>
#include <utility>

namespace meridane {
namespace {

constexpr const char* vertexSource = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
layout(location = 2) in vec2 coordinate;
layout(location = 3) in vec4 color;
uniform vec3 origin;
uniform mat4 modelMatrix;
uniform mat4 eyeToClip;
uniform mat3 normalMatrix;
uniform float pointSize;
#ifdef SECTION
uniform vec4 section;
out float gl_ClipDistance[1];
#endif
out vec3 scenePoint;
#if LIGHT == SMOOTH || LIGHT == LINE
out vec3 sceneNormal;
#endif
#ifdef MAPPED
out vec2 texturePlace;
#endif
#ifdef COLORED
out vec4 ownColor;
#endif
void main()
{
    // The difference of two numbers that are near each other is exact, however large they are.
    vec4 point = modelMatrix * vec4(position - origin, 1.0);
    scenePoint = point.xyz / point.w;
#ifdef SECTION
    gl_ClipDistance[0] = dot(vec4(scenePoint, 1.0), section);
#endif
#if LIGHT == SMOOTH || LIGHT == LINE
    sceneNormal = normalMatrix * normal;
#endif
#ifdef MAPPED
    texturePlace = coordinate;
#endif
#ifdef COLORED
    ownColor = color;
#endif
    gl_Position = eyeToClip * point;
    gl_PointSize = pointSize;
}
)";

// Points are relative to the eye. Colours of fields and images are in the colour space of the screen, and light is
// added up in it.
constexpr const char* fragmentSource = R"(
in vec3 scenePoint;
#if LIGHT == SMOOTH || LIGHT == LINE
in vec3 sceneNormal;
#endif
#ifdef MAPPED
in vec2 texturePlace;
#endif
#ifdef TEXTURED
uniform sampler2D image;
#endif
#ifdef NORMAL_MAPPED
uniform sampler2D normalMap;
#endif
#ifdef SURFACE_MAPPED
uniform sampler2D surfaceMap;
#endif
#ifdef COLORED
in vec4 ownColor;
#endif
uniform vec4 eye;
uniform vec4 material[5];
#define DIFFUSE material[0]
#define AMBIENT material[1].rgb
#define SPECULAR material[2].rgb
#define EXPONENT material[2].w
#define EMISSIVE material[3].rgb
#define METALNESS material[4].x
#define ROUGHNESS material[4].y
#define ALPHA_CUTOFF material[4].z
struct Light {
    vec3 location;
    float kind;
    vec3 color;
    float unused;
    vec3 attenuation;
    float outerAngle;
    vec3 direction;
    float innerAngle;
};
layout(std140) uniform Lights { float lightCount; Light lights[MAX_LIGHTS]; };
out vec4 pictureColor;

const float ambientLight = 0.2;
#ifdef PHYSICAL
// What surfaces that aren't metals reflect when light comes from straight above.
const float usualReflectance = 0.04;
// A highlight that is smaller than a pixel would sparkle.
const float leastRoughness = 0.1;
// There is nothing around the scene that a metal could mirror. It mirrors half of the light as if that came from all sides.
const float surroundings = 0.5;
#endif

#if LIGHT != UNLIT
vec3 directionToEye()
{
    return normalize(eye.xyz - scenePoint * eye.w);
}

// Lights the visible side, whatever the orientation of the triangle and its normals.
vec3 litNormal(vec3 toEye)
{
#if LIGHT == LINE
    vec3 normal = normalize(sceneNormal);
    return dot(normal, toEye) < 0.0 ? -normal : normal;
#else
    vec3 face = cross(dFdx(scenePoint), dFdy(scenePoint));
    if (dot(face, toEye) < 0.0)
        face = -face;
#if LIGHT == FLAT
    return normalize(face);
#else
    float size = length(sceneNormal);
    if (!(size > 0.0))
        return normalize(face);
    return (dot(sceneNormal, face) < 0.0 ? -sceneNormal : sceneNormal) / size;
#endif
#endif
}

#ifdef NORMAL_MAPPED
// Where no tangents are given, the derivatives on the screen make them: Mikkelsen, "Bump Mapping Unparametrized Surfaces
// on the GPU" (2010).
vec3 mappedNormal(vec3 normal)
{
    vec3 pointX = cross(normal, dFdx(scenePoint));
    vec3 pointY = cross(dFdy(scenePoint), normal);
    vec2 placeX = dFdx(texturePlace);
    vec2 placeY = dFdy(texturePlace);
    vec3 tangent = pointY * placeX.x + pointX * placeY.x;
    vec3 bitangent = pointY * placeX.y + pointX * placeY.y;
    float size = max(dot(tangent, tangent), dot(bitangent, bitangent));
    vec3 bump = texture(normalMap, texturePlace).xyz * 2.0 - 1.0;
    vec3 result = normal * bump.z + (tangent * bump.x + bitangent * bump.y) * inversesqrt(max(size, 1e-30));
    float length2 = dot(result, result);
    return size > 0.0 && length2 > 0.0 ? result * inversesqrt(length2) : normal;
}
#endif

#ifdef PHYSICAL
// How much light a surface of tiny mirrors reflects to the eye, relative to a dull white one. The distribution of the
// mirrors is GGX (Walter, Marschner, Li and Torrance, "Microfacet Models for Refraction through Rough Surfaces", 2007),
// their shadows are Smith's (Heitz, "Understanding the Masking-Shadowing Function in Microfacet-Based BRDFs", 2014), and
// the Fresnel term is Schlick's ("An Inexpensive BRDF Model for Physically-based Rendering", 1994).
vec3 microfacets(vec3 normal, vec3 toEye, vec3 toLight, vec3 reflectance, float roughness)
{
    vec3 halfway = normalize(toLight + toEye);
    float slopeOfHalf = clamp(dot(normal, halfway), 0.0, 1.0);
    float slopeOfLight = clamp(dot(normal, toLight), 1e-4, 1.0);
    float slopeOfEye = clamp(dot(normal, toEye), 1e-4, 1.0);
    float width = roughness * roughness;
    float square = width * width;
    float spread = slopeOfHalf * slopeOfHalf * (square - 1.0) + 1.0;
    float distribution = square / (spread * spread);
    float visibility = 0.5 / (slopeOfLight * sqrt(slopeOfEye * slopeOfEye * (1.0 - square) + square)
        + slopeOfEye * sqrt(slopeOfLight * slopeOfLight * (1.0 - square) + square));
    float glancing = pow(1.0 - clamp(dot(toLight, halfway), 0.0, 1.0), 5.0);
    return (reflectance + (1.0 - reflectance) * glancing) * distribution * visibility;
}
#endif

// Returns how much of light number i arrives, and sets the direction that it comes from.
float arrival(int i, vec3 toEye, out vec3 toLight)
{
    int kind = int(lights[i].kind);
    toLight = -lights[i].direction;
    if (kind == DIRECTIONAL)
        return 1.0;
    toLight = toEye;
    if (kind == AT_CAMERA)
        return 1.0;
    vec3 way = lights[i].location - scenePoint;
    float size = length(way);
    toLight = way / max(size, 1e-30);
    vec3 fading = lights[i].attenuation;
    float share = 1.0 / max(fading.x + fading.y * size + fading.z * size * size, 1e-6);
    if (kind == POINT)
        return share;
    float angle = acos(clamp(-dot(toLight, lights[i].direction), -1.0, 1.0));
    float outer = lights[i].outerAngle;
    return angle > outer ? 0.0 : share * clamp((outer - angle) / max(outer - lights[i].innerAngle, 1e-4), 0.0, 1.0);
}
#endif

void main()
{
    vec4 base = DIFFUSE;
#ifdef COLORED
    base = ownColor;
#endif
    vec4 pixel = vec4(1.0);
#ifdef TEXTURED
    pixel = texture(image, texturePlace);
#endif
    base *= pixel;
#if LIGHT == UNLIT
    vec3 sum = base.rgb + EMISSIVE * pixel.rgb;
#else
    vec3 sum = (EMISSIVE + AMBIENT * ambientLight) * pixel.rgb;
    vec3 toEye = directionToEye();
    vec3 normal = litNormal(toEye);
#ifdef NORMAL_MAPPED
    normal = mappedNormal(normal);
#endif
#ifdef PHYSICAL
    vec2 surface = vec2(ROUGHNESS, METALNESS);
#ifdef SURFACE_MAPPED
    surface *= texture(surfaceMap, texturePlace).gb;
#endif
    float roughness = max(surface.x, leastRoughness);
    vec3 dull = base.rgb * (1.0 - surface.y);
    vec3 reflectance = mix(vec3(usualReflectance), base.rgb, surface.y);
#endif
    int count = int(lightCount);
    for (int i = 0; i < count; ++i) {
        vec3 toLight;
        float share = arrival(i, toEye, toLight);
        float slope = dot(normal, toLight);
        if (share <= 0.0 || slope <= 0.0)
            continue;
        vec3 light = lights[i].color * share;
#ifdef PHYSICAL
        vec3 mirrored = microfacets(normal, toEye, toLight, reflectance, roughness) + reflectance * surroundings;
        sum += light * slope * (dull + mirrored);
#else
        float highlight = pow(max(dot(normal, normalize(toLight + toEye)), 0.0), EXPONENT);
        sum += light * (base.rgb * slope + SPECULAR * highlight);
#endif
    }
#endif
#ifdef CUT_OUT
    if (base.a < ALPHA_CUTOFF)
        discard;
    base.a = 1.0;
#endif
    pictureColor = vec4(min(sum, vec3(1.0)), base.a);
}
)";

// Shows what the lists of a mesh contain. What a mesh doesn't have is grey, so that its shape is still seen.
constexpr const char* inspectionSource = R"(
in vec3 scenePoint;
#if LIGHT == SMOOTH || LIGHT == LINE
in vec3 sceneNormal;
#endif
#ifdef MAPPED
in vec2 texturePlace;
#endif
#ifdef COLORED
in vec4 ownColor;
#endif
uniform vec4 eye;
out vec4 pictureColor;
const float squares = 8.0;
void main()
{
    vec3 color = vec3(0.5);
    float facing = 1.0;
#if LIGHT == SMOOTH || LIGHT == FLAT
    vec3 toEye = normalize(eye.xyz - scenePoint * eye.w);
    vec3 face = normalize(cross(dFdx(scenePoint), dFdy(scenePoint)));
    facing = abs(dot(face, toEye));
#endif
#if COLORS == NORMALS
#if LIGHT == FLAT
    color = (dot(face, toEye) < 0.0 ? -face : face) * 0.5 + 0.5;
    facing = 1.0;
#elif LIGHT != UNLIT
    float size = length(sceneNormal);
    if (size > 0.0) {
        color = sceneNormal / size * 0.5 + 0.5;
        facing = 1.0;
    }
#endif
#elif COLORS == COORDINATES && defined(MAPPED)
    vec2 place = floor(texturePlace * squares);
    float light = mod(place.x + place.y, 2.0) < 0.5 ? 0.6 : 1.0;
    color = vec3(mix(0.25, 1.0, fract(texturePlace.x)), mix(0.25, 1.0, fract(texturePlace.y)), 0.6) * light;
#elif COLORS == OWN && defined(COLORED)
    color = ownColor.rgb;
    facing = 1.0;
#endif
    pictureColor = vec4(color * mix(0.5, 1.0, facing), 1.0);
}
)";

} // namespace

SurfaceProgram makeSurfaceProgram(
    const NxGLFunctions& gl, SurfaceVariant variant, SurfaceColors colors, bool hasSection)
{
    std::string head = "#define UNLIT 0\n#define SMOOTH 1\n#define FLAT 2\n#define LINE 3\n";
    const auto define = [&head](const char* name, int value) {
        head.append("#define ").append(name).append(" ").append(std::to_string(value)).append("\n");
    };
    define("DIRECTIONAL", static_cast<int>(LightKind::Directional));
    define("POINT", static_cast<int>(LightKind::Point));
    define("AT_CAMERA", static_cast<int>(LightKind::AtCamera));
    define("LIGHT", static_cast<int>(variant.light));
    define("MAX_LIGHTS", LightList::maxLights);
    head += variant.isTextured ? "#define TEXTURED\n" : "";
    head += variant.hasColors ? "#define COLORED\n" : "";
    head += variant.isPhysical ? "#define PHYSICAL\n" : "";
    head += variant.hasNormalMap ? "#define NORMAL_MAPPED\n" : "";
    head += variant.hasSurfaceMap ? "#define SURFACE_MAPPED\n" : "";
    head += variant.isCutOut ? "#define CUT_OUT\n" : "";
    head += variant.isTextured || variant.hasNormalMap || variant.hasSurfaceMap ? "#define MAPPED\n" : "";
    define("NORMALS", static_cast<int>(SurfaceColors::Normals));
    define("COORDINATES", static_cast<int>(SurfaceColors::Coordinates));
    define("OWN", static_cast<int>(SurfaceColors::Own));
    define("COLORS", static_cast<int>(colors));
    head += hasSection ? "#define SECTION\n" : "";
    const char* const fragments = colors == SurfaceColors::Material ? fragmentSource : inspectionSource;
    SurfaceProgram result{GLProgram(gl, "meshes", head + vertexSource, head + fragments)};
    if (!result.program.isUsable())
        return result;
    result.origin = result.program.uniform("origin");
    result.modelMatrix = result.program.uniform("modelMatrix");
    result.normalMatrix = result.program.uniform("normalMatrix");
    result.eyeToClip = result.program.uniform("eyeToClip");
    result.eye = result.program.uniform("eye");
    result.material = result.program.uniform("material");
    result.pointSize = result.program.uniform("pointSize");
    result.section = result.program.uniform("section");
    result.program.use();
    for (const auto& [name, role] :
        {std::pair("normalMap", NxTexture::NORMAL), std::pair("surfaceMap", NxTexture::METAL_ROUGHNESS)}) {
        if (const int place = result.program.uniform(name); place >= 0)
            gl.Uniform1i(place, role);
    }
    const unsigned int block = gl.GetUniformBlockIndex(result.program.name(), "Lights");
    if (block != GL_INVALID_INDEX)
        gl.UniformBlockBinding(result.program.name(), block, lightsBinding);
    return result;
}

} // namespace meridane
