#include "distraction/JsonOutline.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace norvin {

namespace {

/// Goes once through a well-formed document. Every step stays inside the text all the same.
class Outliner final {
public:
    explicit Outliner(const QByteArray& text)
        : m_text(text) {
        if (m_text.startsWith("\xef\xbb\xbf"))
            m_at = 3;
    }

    JsonNode value() {
        skipBlanks();
        JsonNode node;
        node.line = m_line;
        switch (current()) {
        case '{':
            node.kind = JsonNode::Kind::object;
            eachUntil('}', [this, &node] { node.members.push_back(member()); });
            break;
        case '[':
            node.kind = JsonNode::Kind::array;
            eachUntil(']', [this, &node] { node.items.push_back(value()); });
            break;
        case '"':
            node.kind = JsonNode::Kind::string;
            node.text = string();
            break;
        default:
            node.text = word();
        }
        return node;
    }

private:
    [[nodiscard]] char current() const { return m_at < m_text.size() ? m_text.at(m_at) : '\0'; }

    void skipBlanks() {
        for (; m_at < m_text.size(); ++m_at) {
            if (current() == '\n')
                ++m_line;
            else if (current() != ' ' && current() != '\t' && current() != '\r')
                return;
        }
    }

    template <typename Each>
    void eachUntil(char end, Each each) {
        ++m_at;
        for (skipBlanks(); m_at < m_text.size() && current() != end; skipBlanks()) {
            each();
            skipBlanks();
            if (current() == ',')
                ++m_at;
        }
        ++m_at;
    }

    JsonNode::Member member() {
        JsonNode::Member member;
        member.line = m_line;
        member.key = string();
        skipBlanks();
        ++m_at; // the colon
        member.value = value();
        return member;
    }

    QString string() {
        const qsizetype start = m_at;
        for (++m_at; m_at < m_text.size() && current() != '"'; ++m_at) {
            if (current() == '\\')
                ++m_at;
        }
        ++m_at;
        const QByteArray quoted = m_text.mid(start, m_at - start);
        if (!quoted.contains('\\'))
            return QString::fromUtf8(quoted.mid(1, quoted.size() - 2));
        return QJsonDocument::fromJson('[' + quoted + ']').array().at(0).toString();
    }

    QString word() {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && !QByteArray(" \t\r\n,]}").contains(current()))
            ++m_at;
        if (m_at == start)
            ++m_at;
        return QString::fromUtf8(m_text.mid(start, m_at - start));
    }

    const QByteArray& m_text;
    qsizetype m_at = 0;
    int m_line = 1;
};

} // namespace

int lineAt(const QByteArray& text, qsizetype offset) {
    const auto end = text.cbegin() + std::clamp<qsizetype>(offset, 0, text.size());
    return 1 + static_cast<int>(std::count(text.cbegin(), end, '\n'));
}

JsonNode jsonOutline(const QByteArray& text) {
    return Outliner(text).value();
}

} // namespace norvin
