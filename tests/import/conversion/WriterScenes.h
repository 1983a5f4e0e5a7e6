#pragma once

// Two nodes in each other, a mesh used twice, two materials, a picture.
inline constexpr const char* crates = R"(#mrd 1.0

Transform "stack" {
    translation = 1 2 3
    rotation = 0 0 1 0.5
    Transform "lower" {
        scaleFactor = 2 2 2
        Group as "#1" {
            Material "red" {
                diffuseColor = 1 0.25 0
                shininess = 0
                transparency = 0.25
            }
            Texture {
                image = 2 2 3 0xff0000 0x00ff00 0x0000ff 0xffffff
            }
            Mesh "square" {
                positions = [0 0 0, 1 0 0, 1 1 0, 0 1 0]
                normals = [0 0 1, 0 0 1, 0 0 1, 0 0 1]
                textureCoordinates = [0 0, 1 0, 1 1, 0 1]
                indices = [0, 1, 2, 0, 2, 3]
            }
        }
    }
    Transform "upper" {
        translation = 0 0 4
        use "#1"
        Group {
            Material "blue" {
                diffuseColor = 0 0 1
                shininess = 0
            }
            Mesh "lid" {
                positions = [0 0 1, 1 0 1, 1 1 1]
                normals = [0 0 1, 0 0 1, 0 0 1]
                textureCoordinates = [0 0, 1 0, 1 1]
                colors = [1 0 0 1, 0 1 0 1, 0 0 1 1]
                indices = [0, 1, 2]
            }
        }
    }
}
)";

// Each node with one mesh at most, as the format has it.
inline constexpr const char* plates = R"(#mrd 1.0

Transform "stack" {
    translation = 1 2 3
    rotation = 0 0 1 0.5
    Transform "lower" {
        scaleFactor = 2 2 2
        Group as "#1" {
            Material "red" {
                diffuseColor = 1 0.25 0
                shininess = 0
                transparency = 0.25
            }
            Texture {
                image = 2 2 3 0xff0000 0x00ff00 0x0000ff 0xffffff
            }
            Mesh "square" {
                positions = [0 0 0, 1 0 0, 1 1 0, 0 1 0]
                normals = [0 0 1, 0 0 1, 0 0 1, 0 0 1]
                textureCoordinates = [0 0, 1 0, 1 1, 0 1]
                colors = [1 0 0 1, 0 1 0 1, 0 0 1 1, 1 1 1 0.5]
                indices = [0, 1, 2, 0, 2, 3]
            }
        }
    }
    MatrixTransform "upper" {
        matrix = 1 0 0 0 0.5 1 0 0 0 0 1 0 0 0 4 1
        use "#1"
    }
}
)";

inline constexpr const char* lightsAndCamera = R"(#mrd 1.0

DirectionalLight "sun" {
    intensity = 0.5
    color = 1 0.5 0.25
    direction = 1 0 0
}

Transform "house" {
    translation = 0 0 -5
    Mesh "wall" {
        positions = [0 0 0, 1 0 0, 1 1 0]
    }
    PerspectiveCamera "eye" {
        position = 0 1 10
        nearDistance = 0.5
        farDistance = 50
    }
}
)";
