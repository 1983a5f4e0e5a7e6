#include "meridane/gl/gpu/detail/SurfaceShaders.h"

#include "meridane/gl/places/detail/Lights.h"

#include <string>

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
out vec3 scenePoint;
#if LIGHT == SMOOTH || LIGHT == LINE
out vec3 sceneNormal;
#endif
#ifdef TEXTURED
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
#if LIGHT == SMOOTH || LIGHT == LINE
    sceneNormal = normalMatrix * normal;
#endif
#ifdef TEXTURED
    texturePlace = coordinate;
#endif
#ifdef COLORED
    ownColor = color;
#endif
    gl_Position = eyeToClip * point;
    gl_PointSize = pointSize;
}
)";

// Points are relative to the eye. Colours are those of the screen throughout, as fields and images tell them, and so
// are sums of light.
constexpr const char* fragmentSource = R"(
in vec3 scenePoint;
#if LIGHT == SMOOTH || LIGHT == LINE
in vec3 sceneNormal;
#endif
#ifdef TEXTURED
in vec2 texturePlace;
uniform sampler2D image;
#endif
#ifdef COLORED
in vec4 ownColor;
#endif
uniform vec4 eye;
uniform vec4 material[4];
layout(std140) uniform Lights { vec4 lightCount; vec4 lights[4 * MAX_LIGHTS]; };
out vec4 pictureColor;

const float ambientLight = 0.2;

#if LIGHT != UNLIT
vec3 directionToEye()
{
    return normalize(eye.xyz - scenePoint * eye.w);
}

// The side that is seen is lit, whichever way round the corners or their normals are.
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

// Where the light number i comes from, and how much of it arrives.
float arrival(int i, vec3 toEye, out vec3 toLight)
{
    vec4 location = lights[4 * i];
    vec4 fading = lights[4 * i + 2];
    vec4 axis = lights[4 * i + 3];
    toLight = -axis.xyz;
    if (location.w < 0.5)
        return 1.0;
    toLight = toEye;
    if (location.w > 2.5)
        return 1.0;
    vec3 way = location.xyz - scenePoint;
    float size = length(way);
    toLight = way / max(size, 1e-30);
    float share = 1.0 / max(fading.x + fading.y * size + fading.z * size * size, 1e-6);
    if (location.w < 1.5)
        return share;
    float angle = acos(clamp(-dot(toLight, axis.xyz), -1.0, 1.0));
    return angle > fading.w ? 0.0 : share * clamp((fading.w - angle) / max(fading.w - axis.w, 1e-4), 0.0, 1.0);
}
#endif

void main()
{
    vec4 base = material[0];
#ifdef COLORED
    base = ownColor;
#endif
    vec4 pixel = vec4(1.0);
#ifdef TEXTURED
    pixel = texture(image, texturePlace);
#endif
    base *= pixel;
#if LIGHT == UNLIT
    vec3 sum = base.rgb + material[3].rgb * pixel.rgb;
#else
    vec3 sum = (material[3].rgb + material[1].rgb * ambientLight) * pixel.rgb;
    vec3 toEye = directionToEye();
    vec3 normal = litNormal(toEye);
    int count = int(lightCount.x);
    for (int i = 0; i < count; ++i) {
        vec3 toLight;
        float share = arrival(i, toEye, toLight);
        float slope = dot(normal, toLight);
        if (share <= 0.0 || slope <= 0.0)
            continue;
        vec3 light = lights[4 * i + 1].rgb * share;
        float highlight = pow(max(dot(normal, normalize(toLight + toEye)), 0.0), material[2].w);
        sum += light * (base.rgb * slope + material[2].rgb * highlight);
    }
#endif
    pictureColor = vec4(min(sum, vec3(1.0)), base.a);
}
)";

} // namespace

SurfaceProgram makeSurfaceProgram(const NxGLFunctions& gl, SurfaceVariant variant)
{
    std::string head = "#define UNLIT 0\n#define SMOOTH 1\n#define FLAT 2\n#define LINE 3\n";
    head += "#define LIGHT " + std::to_string(static_cast<int>(variant.light)) + "\n";
    head += "#define MAX_LIGHTS " + std::to_string(LightList::maxLights) + "\n";
    head += variant.isTextured ? "#define TEXTURED\n" : "";
    head += variant.hasColors ? "#define COLORED\n" : "";
    SurfaceProgram result{GLProgram(gl, "meshes", head + vertexSource, head + fragmentSource)};
    if (!result.program.isUsable())
        return result;
    result.origin = result.program.uniform("origin");
    result.modelMatrix = result.program.uniform("modelMatrix");
    result.normalMatrix = result.program.uniform("normalMatrix");
    result.eyeToClip = result.program.uniform("eyeToClip");
    result.eye = result.program.uniform("eye");
    result.material = result.program.uniform("material");
    result.pointSize = result.program.uniform("pointSize");
    const unsigned int block = gl.GetUniformBlockIndex(result.program.name(), "Lights");
    if (block != GL_INVALID_INDEX)
        gl.UniformBlockBinding(result.program.name(), block, lightsBinding);
    return result;
}

} // namespace meridane
