// SPDX-License-Identifier: MIT
#include "service/ConnectionQueue.h"

#include "platform/Texts.h"
#include "service/Decoding.h"
#include "service/Logging.h"

namespace moravel {

namespace {

// A server that accepts and then trickles must not hold the queue for ever.
constexpr double TotalSeconds = 120;

QByteArray lossyAscii(const QString &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text)
        bytes.append(c.unicode() < 128 ? static_cast<char>(c.unicode()) : '?');
    return bytes;
}

} // namespace

FormPost formPost(const QString &url)
{
    const qsizetype mark = url.indexOf(u'?');
    const QString query = mark < 0 ? QString() : url.mid(mark + 1);
    QString target = url;
    if (!query.isEmpty())
        target.remove(query);
    target.chop(1);
    return {target, lossyAscii(query)};
}

QString cleanedAnswer(const QByteArray &bytes)
{
    return decodedUtf8(bytes).value_or(QString()).trimmed().replace(QLatin1String("\\%"),
                                                                    QLatin1String("%"));
}

ConnectionQueue::ConnectionQueue(HttpClient &http, MainLoop &loop, const ServicePorts &ports)
    : m_http(http), m_loop(loop), m_ports(ports)
{ }

void ConnectionQueue::setProcessMethod(const QString &name, const ProcessMethod &method)
{
    m_processMethods.insert(name, method);
}

void ConnectionQueue::addConnectionToQueue(const QString &url, ThumbView &cell,
                                           const QString &method)
{
    m_queue.push_back({url, &cell, method, cell.dateString()});
    cell.setSearch(ThumbView::Search::Looking);
    if (!m_check)
        scheduleCheck();
}

void ConnectionQueue::scheduleCheck()
{
    m_check = m_loop.after(Spacing, [this] {
        m_check.reset();
        checkConnectionQueue();
    });
}

void ConnectionQueue::checkConnectionQueue()
{
    if (m_queue.empty() || isConnecting())
        return;
    m_inFlight = true;
    const Connector &head = m_queue.front();
    if (head.thumb) {
        m_ports.status(
            Texts::tr("Looking for new pic from %1...").arg(head.thumb->longSourceName()));
        head.thumb->setCaptionField(ThumbView::lookingText());
    }
    FormPost post = formPost(head.URL);
    HttpRequest request;
    request.url = QUrl(post.target);
    request.method = "POST";
    request.headers = {{"Content-Length", QByteArray::number(post.body.size())},
                       {"Content-Type", "application/x-www-form-urlencoded"}};
    request.body = std::move(post.body);
    request.totalTimeout = TotalSeconds;
    m_receivedData.clear();
    m_call = m_http.start(request, handlers());
    if (m_call)
        return;
    // Nothing would ever answer, so the queue stays stopped; only a wrong base URL gets here.
    qCWarning(lcService) << "request cannot be sent:" << head.URL;
    if (head.thumb)
        head.thumb->setSearch(ThumbView::Search::Failed);
    m_queue.pop_front();
}

HttpHandlers ConnectionQueue::handlers()
{
    HttpHandlers handlers;
    handlers.onData = [this](const QByteArray &bytes) { m_receivedData.append(bytes); };
    handlers.onFinished = [this] { m_loop.inOrder([this] { connectionDidFinishLoading(); }); };
    handlers.onFailed = [this](const HttpError &error) {
        m_loop.inOrder([this, error] { connectionDidFailWithError(error); });
    };
    return handlers;
}

void ConnectionQueue::connectionDidFinishLoading()
{
    const QString answer = cleanedAnswer(m_receivedData);
    const Connector head = m_queue.front();
    m_queue.pop_front();
    if (head.thumb) {
        head.thumb->showDate(head.connectionDate);
        // Nobody goes on with an empty answer: the cell waits for the next pass.
        head.thumb->setSearch(answer.isEmpty() ? ThumbView::Search::Failed
                                               : ThumbView::Search::None);
    }
    if (answer.isEmpty())
        end();
    else
        process(head, answer, [this] { end(); });
}

void ConnectionQueue::connectionDidFailWithError(const HttpError &error)
{
    m_ports.status(error.description);
    m_connectionFailed = true;
    const Connector head = m_queue.front();
    if (head.thumb)
        head.thumb->setSearch(ThumbView::Search::Failed);
    process(head, QString(), [this] {
        m_queue.pop_front();
        end();
    });
}

void ConnectionQueue::process(const Connector &head, const QString &answer, const Then &then)
{
    const auto method = m_processMethods.constFind(head.processMethod);
    if (method == m_processMethods.constEnd() || !head.thumb) {
        run(then);
        return;
    }
    m_processThumb = head.thumb;
    (*method)(answer, then);
}

void ConnectionQueue::end()
{
    m_call.reset();
    m_receivedData.clear();
    m_inFlight = false;
    scheduleCheck();
}

ThumbView *ConnectionQueue::takeProcessThumb()
{
    ThumbView *cell = m_processThumb;
    m_processThumb.clear();
    return cell;
}

} // namespace moravel
