#include "preferences/TutorialViewController.h"

#include "preferences/InterfaceClasses.h"
#include "preferences/PublisherPages.h"
#include "shell/pages/WebPages.h"

namespace orlamo {

std::vector<ActionBinding> TutorialViewController::actions() {
    return {action("TutorialVideoButtonTap:", *this, &TutorialViewController::TutorialVideoButtonTap),
            action("QuestionsAndAnswersButtonTap:", *this, &TutorialViewController::QuestionsAndAnswersButtonTap)};
}

std::vector<InterfaceClass> TutorialViewController::classes() {
    return interfaceClasses();
}

void TutorialViewController::TutorialVideoButtonTap(Control&) {
    openPublisherPage(WebPages::videoTutorial);
}

void TutorialViewController::QuestionsAndAnswersButtonTap(Control&) {
    openPublisherPage(WebPages::questionsAndAnswers);
}

}  // namespace orlamo
