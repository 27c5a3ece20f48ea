#pragma once

#include "platform/ViewController.h"

namespace orlamo {

/// The page that leads to the publisher's explanations.
class TutorialViewController : public ViewController {
public:
    TutorialViewController() : ViewController("TutorialViewController") {}

    std::vector<ActionBinding> actions() override;
    std::vector<InterfaceClass> classes() override;

    void TutorialVideoButtonTap(Control& sender);
    void QuestionsAndAnswersButtonTap(Control& sender);
};

}  // namespace orlamo
