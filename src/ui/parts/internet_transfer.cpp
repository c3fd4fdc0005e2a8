#include "ui/parts/internet_transfer.hpp"

#include "base/run_time_error.hpp"
#include "ui/shell/qt_text.hpp"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QTimer>

#include <memory>

namespace kvt {

namespace {

bool is_of_the_web(const QUrl& url) {
    return url.isValid() && (url.scheme() == "http" || url.scheme() == "https");
}

QNetworkRequest request_of(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::SameOriginRedirectPolicy);
    return request;
}

/// A server that answered anything was reached.
failure failure_of(const QNetworkReply& reply) {
    if (reply.error() == QNetworkReply::OperationCanceledError) {
        return failure::request_timed_out;
    }
    const bool answered = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    return answered ? failure::request_failed : failure::no_connection;
}

void wait_for(QNetworkReply& reply, int time_limit_ms) {
    QEventLoop loop;
    QObject::connect(&reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(time_limit_ms, &reply, &QNetworkReply::abort);
    if (!reply.isFinished()) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
}

}  // namespace

void internet_transfer::access_type(int type) {
    QNetworkProxyFactory::setUseSystemConfiguration(type == SYSTEM_DEFAULT_ACCESS);
}

std::string internet_transfer::open_url(const std::string& url, int) {
    const QUrl address(qt_text(url));
    if (!is_of_the_web(address)) {
        throw run_time_error(failure::no_connection, url);
    }
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(manager.get(request_of(address)));
    wait_for(*reply, time_limit_ms_);
    if (reply->error() != QNetworkReply::NoError) {
        throw run_time_error(failure_of(*reply), url + ": " + utf8_text(reply->errorString()));
    }
    return reply->readAll().toStdString();
}

}  // namespace kvt
