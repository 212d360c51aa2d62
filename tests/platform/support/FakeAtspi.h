#pragma once

#include "platform/fake/FakeClock.h"
#include "platform/linux/atspi/AtspiProbe.h"

#include <QMap>
#include <QVariantMap>

#include <functional>
#include <vector>

/// An accessibility bus with browsers made of a few objects each. Time passes only while it is asked.
class FakeAtspi final : public norvin::AtspiTransport {
public:
    struct Object {
        quint32 role = 39;
        QString name = {};
        QStringList children = {};
        quint64 states = norvin::AtspiState::showing;
        QVariantMap attributes = {};
        QString embeds = {};
        QString url = {};
        QString text = {};
        std::function<void()> onAction = {};
    };
    struct Program {
        qint64 processId = 0;
        QString toolkit = QStringLiteral("Gecko");
        QMap<QString, Object> objects = {};
        bool isSilent = false;
    };

    explicit FakeAtspi(norvin::FakeClock& clock)
        : m_clock(clock) {}

    /// By the name on the bus.
    QMap<QString, Program> programs;
    std::chrono::milliseconds perRoundTrip{1};
    bool isRegistrySilent = false;
    std::vector<norvin::AtspiCall> calls;
    /// Called before each call is answered.
    std::function<void(const norvin::AtspiCall&)> beforeCall;
    std::vector<std::function<void()>> awaited;

    std::vector<norvin::AtspiReply> call(const std::vector<norvin::AtspiCall>& batch,
                                         std::chrono::milliseconds timeout) override {
        std::vector<norvin::AtspiReply> replies;
        bool isSilent = perRoundTrip > timeout;
        for (const auto& call : batch) {
            calls.push_back(call);
            if (beforeCall)
                beforeCall(call);
            replies.push_back(isSilent ? norvin::AtspiReply{.status = Status::silent} : answer(call));
        }
        for (const auto& reply : replies)
            isSilent = isSilent || reply.status == Status::silent;
        m_clock.advance(isSilent ? timeout : perRoundTrip);
        return replies;
    }

    void awaitAnswer(const QString&, std::function<void()> answers) override {
        awaited.push_back(std::move(answers));
    }

    [[nodiscard]] int count(const char* member) const {
        return static_cast<int>(std::count_if(calls.begin(), calls.end(), [&](const auto& call) {
            return call.member == QLatin1String(member);
        }));
    }

private:
    using Status = norvin::AtspiReply::Status;

    static QVariant pair(const QString& service, const QString& path) { return QVariantList{service, path}; }

    norvin::AtspiReply answer(const norvin::AtspiCall& call) {
        if (call.target.service == QLatin1String("org.a11y.atspi.Registry")) {
            if (isRegistrySilent)
                return {.status = Status::silent};
            QVariantList list;
            for (const QString& service : programs.keys())
                list << pair(service, QStringLiteral("/root"));
            return {.status = Status::answered, .values = {QVariant(list)}};
        }
        if (call.target.service == QLatin1String("org.freedesktop.DBus")) {
            const auto program = programs.constFind(call.arguments.value(0).toString());
            if (program == programs.constEnd())
                return {.status = Status::gone};
            return {.status = Status::answered, .values = {static_cast<uint>(program->processId)}};
        }
        const auto program = programs.constFind(call.target.service);
        if (program == programs.constEnd())
            return {.status = Status::gone};
        if (program->isSilent)
            return {.status = Status::silent};
        if (call.arguments.value(1) == QStringLiteral("ToolkitName"))
            return {.status = Status::answered, .values = {program->toolkit}};
        const auto object = program->objects.constFind(call.target.path);
        if (object == program->objects.constEnd())
            return {.status = Status::refused};
        return {.status = Status::answered, .values = {valueOf(call, *object)}};
    }

    static QVariant valueOf(const norvin::AtspiCall& call, const Object& object) {
        const QString& service = call.target.service;
        if (call.member == QLatin1String("GetChildren")) {
            QVariantList list;
            for (const QString& child : object.children)
                list << pair(service, child);
            return list;
        }
        if (call.member == QLatin1String("GetRelationSet")) {
            QVariantList relations{
                QVariant(QVariantList{7U, QVariant(QVariantList{pair(service, QStringLiteral("/root"))})})};
            if (!object.embeds.isEmpty())
                relations << QVariant(
                    QVariantList{13U, QVariant(QVariantList{pair(service, object.embeds)})});
            return relations;
        }
        if (call.member == QLatin1String("GetState"))
            return QVariantList{static_cast<uint>(object.states), static_cast<uint>(object.states >> 32)};
        if (call.member == QLatin1String("GetRole"))
            return object.role;
        if (call.member == QLatin1String("GetAttributes"))
            return object.attributes;
        if (call.member == QLatin1String("GetAttributeValue"))
            return call.arguments.value(0) == QStringLiteral("URI") ? object.url : QString();
        if (call.member == QLatin1String("GetText"))
            return object.text;
        if (call.member == QLatin1String("DoAction")) {
            const auto action = object.onAction;
            if (action)
                action();
            return static_cast<bool>(action);
        }
        return object.name;
    }

    norvin::FakeClock& m_clock;
};
