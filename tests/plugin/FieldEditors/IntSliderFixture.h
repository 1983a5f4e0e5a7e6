#pragma once

#include "FieldEditors/DvIntSlider.h"
#include "plugin/FieldEditors/RecordingOwner.h"
#include "plugin/SliderDriver.h"

#include <memory>

/// A shown slider for integers with a growing range from 0 to 100, made for each test function.
class IntSliderFixture {
protected:
    void start()
    {
        m_owner = std::make_unique<RecordingOwner>();
        makeShown();
    }
    void finish()
    {
        m_slider.reset();
        m_owner.reset();
    }
    void makeShown(int kind = 1)
    {
        m_slider = std::make_unique<DvIntSlider>(kind, DvSlider::FieldEditor, m_owner.get(), &m_window);
        m_slider->setRange(0, 100, false);
        showIn(m_window, *m_slider);
        m_driver = std::make_unique<SliderDriver>(*m_slider);
    }

    QWidget m_window;
    std::unique_ptr<RecordingOwner> m_owner;
    std::unique_ptr<DvIntSlider> m_slider;
    std::unique_ptr<SliderDriver> m_driver;
};
