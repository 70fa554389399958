// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/certificates/Certificate.h"

#include <QList>

#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <array>
#include <utility>

namespace sandbox {

namespace {

constexpr qint64 hour = 3600;
constexpr qint64 tenYears = 87'648 * hour;

using Extension = std::pair<int, QByteArray>;

std::shared_ptr<BIO> memory(const QByteArray &bytes = {})
{
    return {bytes.isEmpty() ? BIO_new(BIO_s_mem())
                            : BIO_new_mem_buf(bytes.constData(), static_cast<int>(bytes.size())),
            BIO_free};
}

QByteArray contents(const std::shared_ptr<BIO> &bio)
{
    char *bytes = nullptr;
    const long size = BIO_get_mem_data(bio.get(), &bytes);
    return {bytes, static_cast<qsizetype>(size)};
}

// Without this callback OpenSSL would read the password of an encrypted key from the terminal.
int noPassword(char *, int, int, void *)
{
    return -1;
}

bool setSerial(X509 *x509)
{
    std::array<unsigned char, 16> bytes{};
    if (RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) != 1) {
        return false;
    }
    bytes[0] &= 0x7f;
    const std::unique_ptr<BIGNUM, decltype(&BN_free)> number(
        BN_bin2bn(bytes.data(), static_cast<int>(bytes.size()), nullptr), BN_free);
    return number && BN_to_ASN1_INTEGER(number.get(), X509_get_serialNumber(x509));
}

bool setName(X509 *x509, const char *name)
{
    return X509_NAME_add_entry_by_txt(X509_get_subject_name(x509), "CN", MBSTRING_UTF8,
                                      reinterpret_cast<const unsigned char *>(name), -1, -1, 0)
        == 1;
}

bool addExtensions(X509 *x509, X509 *issuer, const QList<Extension> &extensions)
{
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer, x509, nullptr, nullptr, 0);
    for (const auto &[kind, value] : extensions) {
        const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> extension(
            X509V3_EXT_conf_nid(nullptr, &context, kind, value.constData()), X509_EXTENSION_free);
        if (!extension || X509_add_ext(x509, extension.get(), -1) != 1) {
            return false;
        }
    }
    return true;
}

std::optional<Certificate> make(const char *name, const Certificate *issuer, qint64 from,
                                qint64 until, const QList<Extension> &extensions)
{
    const Certificate made{
        .x509 = {X509_new(), X509_free},
        .key = {EVP_PKEY_Q_keygen(nullptr, nullptr, "EC", "P-256"), EVP_PKEY_free}};
    if (!made.x509 || !made.key) {
        return {};
    }
    X509 *x509 = made.x509.get();
    const Certificate &signer = issuer ? *issuer : made;
    const bool isFilled = X509_set_version(x509, X509_VERSION_3) == 1 && setSerial(x509)
        && setName(x509, name)
        && X509_set_issuer_name(x509, X509_get_subject_name(signer.x509.get())) == 1
        && ASN1_TIME_set(X509_getm_notBefore(x509), static_cast<time_t>(from))
        && ASN1_TIME_set(X509_getm_notAfter(x509), static_cast<time_t>(until))
        && X509_set_pubkey(x509, made.key.get()) == 1
        && addExtensions(x509, signer.x509.get(), extensions);
    if (!isFilled || X509_sign(x509, signer.key.get(), EVP_sha256()) == 0) {
        return {};
    }
    return made;
}

} // namespace

std::optional<Certificate> Certificate::read(const QByteArray &certificate, const QByteArray &key)
{
    const Certificate found{
        .x509 = {PEM_read_bio_X509(memory(certificate).get(), nullptr, noPassword, nullptr),
                 X509_free},
        .key = {PEM_read_bio_PrivateKey(memory(key).get(), nullptr, noPassword, nullptr),
                EVP_PKEY_free}};
    if (!found.x509 || !found.key
        || X509_check_private_key(found.x509.get(), found.key.get()) != 1) {
        return {};
    }
    return found;
}

QByteArray Certificate::certificatePem() const
{
    const auto bio = memory();
    PEM_write_bio_X509(bio.get(), x509.get());
    return contents(bio);
}

QByteArray Certificate::keyPem() const
{
    const auto bio = memory();
    PEM_write_bio_PrivateKey(bio.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    return contents(bio);
}

bool Certificate::isValid(const Certificate &issuer, qint64 now, qint64 until) const
{
    auto begin = static_cast<time_t>(now);
    auto end = static_cast<time_t>(until);
    return X509_cmp_time(X509_get0_notBefore(x509.get()), &begin) < 0
        && X509_cmp_time(X509_get0_notAfter(x509.get()), &end) > 0
        && X509_check_issued(issuer.x509.get(), x509.get()) == X509_V_OK
        && X509_verify(x509.get(), issuer.key.get()) == 1;
}

std::optional<Certificate> makeAuthority(qint64 now)
{
    return make("WZT sandbox authority", nullptr, now - hour, now + tenYears,
                {{NID_basic_constraints, "critical,CA:TRUE,pathlen:0"},
                 {NID_key_usage, "critical,keyCertSign,cRLSign"},
                 {NID_name_constraints,
                  "critical,permitted;DNS:localhost,permitted;IP:127.0.0.0/255.0.0.0,"
                  "permitted;IP:::1/ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff"},
                 {NID_subject_key_identifier, "hash"}});
}

std::optional<Certificate> issue(const Certificate &authority, const QByteArray &names, qint64 from,
                                 qint64 until)
{
    return make("WZT sandbox service", &authority, from, until,
                {{NID_basic_constraints, "critical,CA:FALSE"},
                 {NID_key_usage, "critical,digitalSignature"},
                 {NID_ext_key_usage, "serverAuth"},
                 {NID_subject_alt_name, names},
                 {NID_subject_key_identifier, "hash"},
                 {NID_authority_key_identifier, "keyid:always"}});
}

} // namespace sandbox
