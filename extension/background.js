// The part of Norvin Focus that lives in the browser. It tells the native host which domain is in front, and
// closes the tab in front when the application asks for it. It reads no page: a tab's address is all it looks
// at, and of that only the host name leaves this file.

"use strict";

const api = globalThis.browser ?? globalThis.chrome;

const HOST = "com.norvin.focus";
const FIRST_RETRY = 5_000; // ms
const LONGEST_RETRY = 60_000; // ms
const CLOSING_TIME = 250; // ms that a tab may take to go once it was told to

// The host and the application accept no other names. An IPv6 literal is none, so such a page has no domain.
const DOMAIN = /^[a-z0-9._-]{1,253}$/;

let port = null;
let retryDelay = FIRST_RETRY;
let lastReport = null;
let isReporting = false;
let isReportDue = false;

// The page in front

function domainOf(address) {
    let url;
    try {
        url = new URL(address);
    } catch {
        return null;
    }
    const isWebPage = url.protocol === "http:" || url.protocol === "https:";
    return isWebPage && DOMAIN.test(url.hostname) ? url.hostname : null;
}

// "www.example.org" and "example.org" are one site to the application.
function isSameSite(domain, otherDomain) {
    const bare = (text) => text.replace(/^www\./, "");
    return domain !== null && bare(domain) === bare(otherDomain);
}

// The active tab of the window that has, or had last, the keyboard. No tab where there is no such window, or
// where it is one that this extension must not see: a private window that the user has not opened to it.
async function front() {
    try {
        const window = await api.windows.getLastFocused();
        const [tab] = await api.tabs.query({ active: true, windowId: window.id });
        return { tab: tab ?? null, isFocused: window.focused };
    } catch {
        return { tab: null, isFocused: false };
    }
}

async function report() {
    // Events come in flocks. One look at a time keeps the reports in order, and one more look after the last
    // event makes them end with the truth.
    if (isReporting) {
        isReportDue = true;
        return;
    }
    isReporting = true;
    do {
        isReportDue = false;
        const { tab, isFocused } = await front();
        send({ type: "page", domain: domainOf(tab?.url), focused: isFocused });
    } while (isReportDue);
    isReporting = false;
}

function send(page) {
    const text = JSON.stringify(page);
    if (port === null || text === lastReport) {
        return;
    }
    lastReport = text;
    port.postMessage(page);
}

// Closing

function wasClosed(tabId) {
    return new Promise((resolve) => {
        const finish = (isClosed) => {
            clearTimeout(timer);
            api.tabs.onRemoved.removeListener(listener);
            resolve(isClosed);
        };
        const listener = (removedId) => {
            if (removedId === tabId) {
                finish(true);
            }
        };
        api.tabs.onRemoved.addListener(listener);
        const timer = setTimeout(() => {
            api.tabs.get(tabId).then(() => finish(false), () => finish(true));
        }, CLOSING_TIME);
    });
}

// Why the tab in front was not closed, or null when it is gone. A page may ask its user to stay, so that only
// the tab's absence proves anything.
async function closeFront({ domain, until }) {
    const { tab } = await front();
    if (tab === null || !isSameSite(domainOf(tab.url), domain)) {
        return "otherPage";
    }
    if (tab.pinned) {
        return "pinned";
    }
    // A browser that stood still does not act on what was wanted a while ago.
    if (Date.now() > until) {
        return "late";
    }
    const closed = wasClosed(tab.id);
    try {
        await Promise.race([api.tabs.remove(tab.id), closed]);
    } catch {
        return "failed";
    }
    return (await closed) ? null : "failed";
}

async function answer(request) {
    if (request.type !== "close") {
        return;
    }
    const asked = port;
    const reason = await closeFront(request);
    if (port !== asked) {
        return;
    }
    const result = { type: "closeAnswer", id: request.id, closed: reason === null };
    asked.postMessage(reason === null ? result : { ...result, reason });
}

// The native host, which waits for the application by itself

function connect() {
    const connectedAt = Date.now();
    port = api.runtime.connectNative(HOST);
    port.onMessage.addListener(answer);
    port.onDisconnect.addListener((gone) => {
        // Reading the reason keeps the browser from reporting it as an error of the extension.
        void (gone.error ?? api.runtime.lastError);
        port = null;
        lastReport = null;
        // A host that was there and went comes back soon; one that is not installed is asked for ever less.
        if (Date.now() - connectedAt > FIRST_RETRY) {
            retryDelay = FIRST_RETRY;
        }
        setTimeout(connect, retryDelay);
        retryDelay = Math.min(retryDelay * 2, LONGEST_RETRY);
    });
    report();
}

for (const event of [
    api.tabs.onActivated,
    api.tabs.onRemoved,
    api.tabs.onAttached,
    api.tabs.onDetached,
    api.tabs.onReplaced, // Chromium: a page that was loaded ahead takes the place of another
    api.windows.onFocusChanged,
    api.windows.onRemoved,
]) {
    event?.addListener(() => report());
}
api.tabs.onUpdated.addListener((tabId, change, tab) => {
    if (tab.active && (change.url !== undefined || change.status !== undefined)) {
        report();
    }
});

connect();
