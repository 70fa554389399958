// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/http/HTTPErrors.h"

#include <curl/curl.h>

#include <algorithm>
#include <array>

namespace {

/// CURLE_TOO_LARGE, which older headers than those of libcurl 8.6 do not declare.
constexpr long curlTooLarge = 100;

struct ErrorRow {
    long reported;
    URLErrorCode code;
};

/// By CURLcode. Any other code is NSURLErrorUnknown.
constexpr std::array errorTable{
    ErrorRow{CURLE_URL_MALFORMAT, NSURLErrorBadURL},
    ErrorRow{CURLE_COULDNT_RESOLVE_HOST, NSURLErrorCannotConnectToHost},
    ErrorRow{CURLE_COULDNT_RESOLVE_PROXY, NSURLErrorCannotConnectToHost},
    ErrorRow{CURLE_COULDNT_CONNECT, NSURLErrorCannotConnectToHost},
    ErrorRow{CURLE_PROXY, NSURLErrorCannotConnectToHost},
    ErrorRow{CURLE_OPERATION_TIMEDOUT, NSURLErrorTimedOut},
    ErrorRow{CURLE_GOT_NOTHING, NSURLErrorNetworkConnectionLost},
    ErrorRow{CURLE_PARTIAL_FILE, NSURLErrorNetworkConnectionLost},
    ErrorRow{CURLE_RECV_ERROR, NSURLErrorNetworkConnectionLost},
    ErrorRow{CURLE_SEND_ERROR, NSURLErrorNetworkConnectionLost},
    ErrorRow{CURLE_BAD_CONTENT_ENCODING, NSURLErrorCannotDecodeContentData},
    ErrorRow{CURLE_WEIRD_SERVER_REPLY, NSURLErrorBadServerResponse},
    // The first line is not HTTP.
    ErrorRow{CURLE_UNSUPPORTED_PROTOCOL, NSURLErrorBadServerResponse},
    ErrorRow{curlTooLarge, NSURLErrorDataLengthExceedsMaximum},
    ErrorRow{CURLE_SSL_CONNECT_ERROR, NSURLErrorSecureConnectionFailed},
    ErrorRow{CURLE_SSL_CACERT_BADFILE, NSURLErrorSecureConnectionFailed},
};

/// By OpenSSL's verification result (X509_V_ERR_...), after CURLE_PEER_FAILED_VERIFICATION. Any
/// other result, a certificate for another host above all, is NSURLErrorServerCertificateUntrusted.
constexpr std::array certificateTable{
    ErrorRow{9, NSURLErrorServerCertificateHasBadDate},
    ErrorRow{10, NSURLErrorServerCertificateHasBadDate},
    ErrorRow{18, NSURLErrorServerCertificateHasUnknownRoot},
    ErrorRow{19, NSURLErrorServerCertificateHasUnknownRoot},
    ErrorRow{20, NSURLErrorServerCertificateHasUnknownRoot},
    ErrorRow{21, NSURLErrorServerCertificateHasUnknownRoot},
};

template <size_t size>
URLErrorCode lookUp(const std::array<ErrorRow, size> &table, long reported, URLErrorCode otherwise)
{
    const auto *row = std::find_if(table.begin(), table.end(),
                                   [&](const ErrorRow &r) { return r.reported == reported; });
    return row == table.end() ? otherwise : row->code;
}

} // namespace

URLErrorCode HTTPErrors::codeOf(void *easy, int reported)
{
    if (reported != CURLE_PEER_FAILED_VERIFICATION) {
        return lookUp(errorTable, reported, NSURLErrorUnknown);
    }
    long verification = 0;
    curl_easy_getinfo(easy, CURLINFO_SSL_VERIFYRESULT, &verification);
    return lookUp(certificateTable, verification, NSURLErrorServerCertificateUntrusted);
}
