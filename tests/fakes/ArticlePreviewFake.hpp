#pragma once

#include "Brindle/menu/ArticlePreview.hpp"

#include <memory>
#include <string>
#include <vector>

namespace brindle {

/// Logs its removal.
class ViewFake : public View {
public:
    explicit ViewFake(std::shared_ptr<std::vector<std::string>> log) : _log(std::move(log)) {}
    void removeFromSuperview() override { _log->emplace_back("removeFromSuperview"); }

private:
    std::shared_ptr<std::vector<std::string>> _log;
};

/// Logs what is done with it, its end included.
class ArticlePreviewControllerFake : public ArticlePreviewController {
public:
    explicit ArticlePreviewControllerFake(std::shared_ptr<std::vector<std::string>> log)
        : _log(std::move(log)), _view(std::make_shared<ViewFake>(_log)) {}
    ~ArticlePreviewControllerFake() override { _log->emplace_back("end"); }
    ArticlePreviewControllerFake(const ArticlePreviewControllerFake&) = delete;
    ArticlePreviewControllerFake& operator=(const ArticlePreviewControllerFake&) = delete;

    std::shared_ptr<View> view() override {
        _log->emplace_back("view");
        return _view;
    }
    void fill() override { _log->emplace_back("fill"); }

private:
    std::shared_ptr<std::vector<std::string>> _log;
    std::shared_ptr<ViewFake> _view;
};

/// Logs the previews that are made, and what is done with them, in one list.
class ArticlePreviewFactoryFake : public ArticlePreviewFactory {
public:
    std::shared_ptr<ArticlePreviewController> makePreview(const std::shared_ptr<FeedItemArticle>& article) override {
        log->push_back("makePreview " + article->entry->title);
        return std::make_shared<ArticlePreviewControllerFake>(log);
    }

    std::shared_ptr<std::vector<std::string>> log = std::make_shared<std::vector<std::string>>();
};

} // namespace brindle
