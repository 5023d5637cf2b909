#pragma once

#include "desktop/toolkit/WebPluginInterface.hpp"
#include "desktop/web/EnginePage.hpp"
#include "desktop/web/EngineView.hpp"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <vector>

namespace brindle::desktop {

/// A page view on Qt WebEngine. Thread: main.
class EnginePageView : public QObject, public WebPageView {
    Q_OBJECT

public:
    explicit EnginePageView(QWidget* parent);
    ~EnginePageView() override;

    QWidget* widget() const override { return _view; }
    void setEvents(Events events) override;
    void setHtml(const QByteArray& html) override;
    bool load(const QUrl& url, const QString& host, double seconds) override;
    void reload() override;
    bool canGoBack() const override;
    bool canGoForward() const override;
    void goBack() override { _page->triggerAction(QWebEnginePage::Back); }
    void goForward() override { _page->triggerAction(QWebEnginePage::Forward); }
    double progress() const override { return _progress; }
    QString title() const override;
    void scrollPage(bool down, std::function<void(bool wasAtEnd)> done) override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void connectPage();
    void showColors();
    void showBackground();
    void didStart();
    void didFinish(bool isLoaded);
    void setProgress(double progress);

    const QPointer<EngineView> _view;
    const QPointer<EnginePage> _page;
    Events _events;
    std::vector<QUrl> _ownPages; ///< the addresses of those that the program made, shown or in the history
    QTimer _timeout;
    double _progress = 0;
};

} // namespace brindle::desktop
