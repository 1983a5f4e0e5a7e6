#pragma once

#include "plugins/nodes/MaterialLook.h"

#include <QImage>
#include <QWidget>

#include <optional>

class NxMaterial;

namespace nodes {

/// A sphere of a material in the light of one lamp, before a checkered ground that shows what is translucent.
class MaterialSphere : public QWidget {
    Q_OBJECT

public:
    MaterialSphere();

    void setMaterial(const NxMaterial& material);
    /// The sphere alone, on nothing, with that many pixels to its side.
    [[nodiscard]] QImage picture(int side) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<MaterialLook> m_look;
    QImage m_picture; // of the look, for the present size
};

} // namespace nodes
