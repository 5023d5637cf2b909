#pragma once

#include "platform/Alert.hpp"
#include "tests/fakes/CallLog.hpp"

#include <vector>

namespace brindle {

/// Keeps the alerts that it is to show, and answers each as a test has it.
class AlertPresenterFake : public AlertPresenter {
public:
    explicit AlertPresenterFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void runModal(const Alert& alert, Answer answer) override { show("runModal ", alert, answer); }
    void beginSheet(const Alert& alert, Answer answer) override { show("beginSheet ", alert, answer); }

    CallLog log; ///< by the alerts' messages
    std::vector<Alert> alerts;
    int response = Alert::firstButtonReturn;

private:
    void show(const char* how, const Alert& alert, const Answer& answer) {
        log->push_back(how + alert.messageText);
        alerts.push_back(alert);
        if (answer)
            answer(response);
    }
};

} // namespace brindle
