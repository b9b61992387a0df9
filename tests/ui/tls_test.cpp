// Telnet over TLS against the demo host serving TLS and against stunnel4 in front of the plain
// demo host: verified with a CA file, refused and asked about (self-signed, expired, another
// host's, unknown issuer), trusted, warned about when it changes. (The command line's refusals
// are among its transcripts.)
#include <QCryptographicHash>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QSslCertificate>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>
#include <optional>

#include "demo_host/demo_host_server.h"
#include "settings/document.h"
#include "settings/field_registry.h"
#include "support/modal.h"
#include "tn5250/certificate_dialog.h"
#include "tn5250/host_connection_qt.h"
#include "tn5250/host_ip_dialog.h"
#include "tn5250/host_screen_widget.h"

namespace veltrix {
namespace {

using Answer = CertificateDialog::Answer;

QString Data(const char* name) {
  return QStringLiteral(VELTRIX_SOURCE_DIR "/tests/ui/data/tls/") + QLatin1String(name);
}

std::string FingerprintOf(const char* pem) {
  const QList<QSslCertificate> certificate = QSslCertificate::fromPath(Data(pem));
  return "SHA256:" +
         certificate.value(0).digest(QCryptographicHash::Sha256).toHex().toUpper().toStdString();
}

struct CliRun {
  int exit_code = -1;
  QString out;
  QString err;
};

// Runs veltrix-cli while the event loop keeps serving the in-process host.
CliRun RunCli(const QStringList& args) {
  QProcess process;
  process.start(QStringLiteral(VELTRIX_CLI_PATH), args);
  CliRun run;
  if (!process.waitForStarted() ||
      !QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 30000)) {
    return run;
  }
  run.exit_code = process.exitCode();
  run.out = QString::fromUtf8(process.readAllStandardOutput());
  run.err = QString::fromUtf8(process.readAllStandardError());
  return run;
}

quint16 FreePort() {
  QTcpServer probe;
  probe.listen(QHostAddress::LocalHost, 0);
  return probe.serverPort();
}

}  // namespace

class TlsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    dir_ = std::make_unique<QTemporaryDir>();
    doc_ = std::make_unique<Document>();
    SetDefaults(*doc_, 1);
    screen_ = std::make_unique<HostScreenWidget>();
    screen_->resize(800, 600);
    host_ = std::make_unique<HostConnectionQt>(screen_.get());
    host_->SetLogDirectory(std::filesystem::path(dir_->path().toStdString()) / "Logs");
    host_->SetTrustFile(dir_->filePath(QStringLiteral("config/veltrix/trusted")).toStdString());
    host_->SetErrorSink([this](const QString& text) { errors_ << text; });
    host_->SetCertificateAsker(
        [this](const std::string& host, const CertificateFacts& facts, CertificateVerdict verdict) {
          questions_.push_back({host, facts, verdict});
          return answer_;
        });
    connect(host_.get(), &HostConnectionQt::connectionFailed, this,
            [this](const QString& text) { failures_ << text; });
    connect(host_.get(), &HostConnectionQt::disconnectRequested, host_.get(),
            &HostConnectionQt::DisconnectFromHost);
    screen_->SetConnection(&host_->connection());
    failures_.clear();
    errors_.clear();
    questions_.clear();
    answer_ = Answer::kCancel;
  }
  void cleanup() {
    host_->DisconnectFromHost();
    screen_->SetConnection(nullptr);
    host_.reset();
    screen_.reset();
    server_.reset();
  }
  void verifiedHostSignsOn() {
    StartHost("host.pem");
    host_->SetCaFile(Data("ca.pem"));
    QVERIFY(Connect(server_->port()));
    QVERIFY(questions_.empty());
    QTRY_VERIFY(screen_->RowText(0).contains(QStringLiteral("Sign On")));
    QTRY_VERIFY(!host_->connection().session().KeyboardLocked());
    QTest::keyClicks(screen_.get(), QStringLiteral("alice"));
    QTest::keyClick(screen_.get(), Qt::Key_Return);
    QTRY_VERIFY(screen_->RowText(0).contains(QStringLiteral("Main Menu")));
    // The status and the log name the protocol and the cipher.
    const std::string status = host_->connection().Status().host;
    QVERIFY2(status.find(":" + std::to_string(server_->port()) + " (TLS 1.") != std::string::npos,
             status.c_str());
    host_->DisconnectFromHost();
    QFile log(dir_->filePath(QStringLiteral("Logs/Quarvel-TN.log")));
    QVERIFY(log.open(QIODevice::ReadOnly));
    QVERIFY(log.readAll().contains("Secured: TLS 1."));
    QVERIFY(!QFile::exists(QString::fromStdString(host_->trust_file())));
  }
  void certificateQuestions_data() {
    QTest::addColumn<QString>("certificate");
    QTest::addColumn<bool>("with_ca");
    QTest::addColumn<int>("problem");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("connects");
    const auto add = [](const char* name, const char* pem, bool ca, CertificateProblem problem,
                        Answer answer, bool connects) {
      QTest::newRow(name) << QString::fromLatin1(pem) << ca << static_cast<int>(problem)
                          << static_cast<int>(answer) << connects;
    };
    add("self-signed, cancelled", "self-signed.pem", false, CertificateProblem::kSelfSigned,
        Answer::kCancel, false);
    add("expired", "expired.pem", true, CertificateProblem::kExpired, Answer::kCancel, false);
    add("wrong host", "other-host.pem", true, CertificateProblem::kWrongHost, Answer::kCancel,
        false);
    add("self-signed, this time", "self-signed.pem", false, CertificateProblem::kSelfSigned,
        Answer::kConnectOnce, true);
    add("unknown issuer, always", "host.pem", false, CertificateProblem::kUnknownIssuer,
        Answer::kAlwaysTrust, true);
  }
  void certificateQuestions() {
    QFETCH(QString, certificate);
    QFETCH(bool, with_ca);
    QFETCH(int, problem);
    QFETCH(int, answer);
    QFETCH(bool, connects);
    StartHost(certificate.toLatin1().constData());
    if (with_ca) host_->SetCaFile(Data("ca.pem"));
    answer_ = static_cast<Answer>(answer);
    QCOMPARE(Connect(server_->port()), connects);
    QCOMPARE(questions_.size(), std::size_t{1});
    const Question& q = questions_.front();
    QCOMPARE(q.host, std::string("127.0.0.1"));
    QCOMPARE(q.verdict, CertificateVerdict::kAsk);
    QVERIFY(std::ranges::find(q.facts.problems, static_cast<CertificateProblem>(problem)) !=
            q.facts.problems.end());
    QCOMPARE(q.facts.fingerprint, FingerprintOf(certificate.toLatin1().constData()));
    const bool always = answer_ == Answer::kAlwaysTrust;
    QCOMPARE(QFile::exists(QString::fromStdString(host_->trust_file())), always);
    if (!connects) {
      QCOMPARE(failures_.size(), 1);
      QVERIFY2(failures_.front().contains(QString::fromStdString(
                   std::string(CertificateProblemText(static_cast<CertificateProblem>(problem))))),
               qPrintable(failures_.front()));
      QCOMPARE(errors_, QStringList{QStringLiteral("Can not establish connection")});
      return;
    }
    QTRY_VERIFY(screen_->RowText(0).contains(QStringLiteral("Sign On")));
    // Trusted for good: the next connection asks nothing; "this time" asks again.
    host_->DisconnectFromHost();
    QVERIFY(Connect(server_->port()));
    QCOMPARE(questions_.size(), always ? std::size_t{1} : std::size_t{2});
  }
  // The real Certificate window, answered as a user does: "Connect this time" connects.
  void theCertificateWindowAnswersTheConnection() {
    StartHost("self-signed.pem");
    auto fresh = std::make_unique<HostConnectionQt>(screen_.get());
    screen_->SetConnection(&fresh->connection());
    host_ = std::move(fresh);
    host_->SetTrustFile(dir_->filePath(QStringLiteral("config/veltrix/trusted")).toStdString());
    host_->SetErrorSink([this](const QString& text) { errors_ << text; });
    testing::WhenModal([](QWidget* w) {
      auto* dialog = qobject_cast<CertificateDialog*>(w);
      QVERIFY(dialog != nullptr);
      QVERIFY(dialog->findChild<QLabel*>("reason")->text().contains(QStringLiteral("self-signed")));
      dialog->button(Answer::kConnectOnce)->click();
    });
    QVERIFY(Connect(server_->port()));
    QTRY_VERIFY(screen_->RowText(0).contains(QStringLiteral("Sign On")));
    QVERIFY(errors_.isEmpty());
  }
  void trustedCertificateThatChangesIsAWarning() {
    QDir().mkpath(dir_->filePath(QStringLiteral("config/veltrix")));
    QFile trust(QString::fromStdString(host_->trust_file()));
    QVERIFY(trust.open(QIODevice::WriteOnly));
    trust.write(("127.0.0.1 " + FingerprintOf("self-signed.pem") + "\n").c_str());
    trust.close();
    // The trusted one connects without a question.
    StartHost("self-signed.pem");
    QVERIFY(Connect(server_->port()));
    QVERIFY(questions_.empty());
    host_->DisconnectFromHost();
    // Another certificate for the same host, even one the CA verifies: a warning, never silent.
    for (const char* other : {"self-signed-2.pem", "host.pem"}) {
      questions_.clear();
      failures_.clear();
      StartHost(other);
      host_->SetCaFile(Data("ca.pem"));
      QVERIFY(!Connect(server_->port()));
      QCOMPARE(questions_.size(), std::size_t{1});
      QCOMPARE(questions_.front().verdict, CertificateVerdict::kChanged);
      QVERIFY(failures_.value(0).contains(QStringLiteral("not the one trusted")));
    }
  }
  void plainTelnetPortFailsClearly() {
    server_ = std::make_unique<demo_host::DemoHostServer>();
    QVERIFY(server_->Listen(0));
    host_->SetConnectTimeout(1500);
    QVERIFY(!Connect(server_->port()));
    QVERIFY(questions_.empty());
    QVERIFY2(failures_.value(0).contains(QStringLiteral("did not answer in TLS")),
             qPrintable(failures_.value(0)));
  }
  void stunnelInFrontOfThePlainHost() {
    const QString stunnel = QStandardPaths::findExecutable(QStringLiteral("stunnel4"));
    QVERIFY2(!stunnel.isEmpty(), "stunnel4 is missing: scripts/install-deps.sh installs it");
    server_ = std::make_unique<demo_host::DemoHostServer>();
    QVERIFY(server_->Listen(0));
    const quint16 port = FreePort();
    QFile config(dir_->filePath(QStringLiteral("stunnel.conf")));
    QVERIFY(config.open(QIODevice::WriteOnly));
    config.write(QStringLiteral("foreground = yes\npid =\n[host]\naccept = 127.0.0.1:%1\n"
                                "connect = 127.0.0.1:%2\ncert = %3\nkey = %4\n")
                     .arg(port)
                     .arg(server_->port())
                     .arg(Data("host.pem"), Data("host.key"))
                     .toUtf8());
    config.close();
    QProcess tunnel;
    tunnel.setProcessChannelMode(QProcess::MergedChannels);
    tunnel.start(stunnel, {config.fileName()});
    QVERIFY(tunnel.waitForStarted());
    QVERIFY2(QTest::qWaitFor(
                 [&] {
                   QTcpSocket probe;
                   probe.connectToHost(QHostAddress::LocalHost, port);
                   return probe.waitForConnected(200);
                 },
                 10000),
             qPrintable(QString::fromUtf8(tunnel.readAll())));

    // The window: verified with the CA file, signed on.
    host_->SetCaFile(Data("ca.pem"));
    QVERIFY(Connect(port));
    QVERIFY(questions_.empty());
    QTRY_VERIFY(screen_->RowText(0).contains(QStringLiteral("Sign On")));
    host_->DisconnectFromHost();
    // The command line: the same.
    const CliRun run = RunCli({"session", "127.0.0.1", "--port", QString::number(port), "--tls",
                               "--ca", Data("ca.pem"), "--keys", "bob<Enter>"});
    QVERIFY2(run.exit_code == 0, qPrintable(run.err));
    QVERIFY(run.out.contains(QStringLiteral("Main Menu")));
    QVERIFY(run.err.contains(QStringLiteral("secured with TLS 1.")));
    tunnel.terminate();
    tunnel.waitForFinished(5000);
  }
  void certificateDialogAnswers() {
    CertificateFacts facts;
    facts.subject = "127.0.0.1";
    facts.issuer = "127.0.0.1";
    facts.valid_from = "2026-11-24 20:00 UTC";
    facts.valid_until = "2126-10-31 20:00 UTC";
    facts.fingerprint = FingerprintOf("self-signed.pem");
    facts.problems = {CertificateProblem::kSelfSigned};
    TrustedCertificates trusted;
    trusted.Trust("10.0.0.5", FingerprintOf("host.pem"));
    trusted.Trust("10.0.0.6", FingerprintOf("other-host.pem"));
    for (Answer answer : {Answer::kConnectOnce, Answer::kAlwaysTrust, Answer::kCancel}) {
      CertificateDialog dialog("127.0.0.1", facts, CertificateVerdict::kAsk, trusted, {});
      dialog.show();
      QCOMPARE(dialog.answer(), Answer::kCancel);
      QTest::mouseClick(dialog.button(answer), Qt::LeftButton);
      QCOMPARE(dialog.answer(), answer);
      QCOMPARE(dialog.result(), answer == Answer::kCancel ? QDialog::Rejected : QDialog::Accepted);
    }
    QCOMPARE(CertificateDialog("127.0.0.1", facts, CertificateVerdict::kAsk, trusted, {})
                 .button(Answer::kAlwaysTrust)
                 ->text(),
             QStringLiteral("Always trust this certificate for 127.0.0.1"));
    // The trusted list: removing one tells the owner, who saves the file.
    int saved = 0;
    CertificateDialog dialog("10.0.0.5", facts, CertificateVerdict::kChanged, trusted,
                             [&] { ++saved; });
    dialog.show();
    QVERIFY(dialog.findChild<QLabel*>("reason")->text().contains(QStringLiteral("WARNING")));
    auto* list = dialog.findChild<QListWidget*>("trusted");
    QCOMPARE(list->count(), 2);
    list->setCurrentRow(1);
    QTest::mouseClick(dialog.findChild<QPushButton*>("remove"), Qt::LeftButton);
    QCOMPARE(saved, 1);
    QCOMPARE(list->count(), 1);
    QVERIFY(trusted.Find("10.0.0.6") == nullptr && trusted.Find("10.0.0.5") != nullptr);

    // The connect dialog: "Use TLS" shows port 992 for a record on 23, the record's own else.
    HostIpForm form;
    for (const auto& [telnet_port, shown] : {std::pair{23, "Port : 992"}, {2323, "Port : 2323"}}) {
      HostIpDialog connect_dialog(form, "127.0.0.1", nullptr, {},
                                  static_cast<std::uint16_t>(telnet_port));
      auto* port = connect_dialog.findChild<QLabel*>("port");
      QCOMPARE(port->text(), QStringLiteral("Port : %1").arg(telnet_port));
      connect_dialog.use_tls_box()->setChecked(true);
      QCOMPARE(port->text(), QString::fromLatin1(shown));
      connect_dialog.accept();
      QVERIFY(form.use_tls());
    }
  }

 private:
  void StartHost(const char* certificate) {
    server_ = std::make_unique<demo_host::DemoHostServer>();
    QVERIFY2(server_->UseTls(Data(certificate), Data("host.key")), qPrintable(server_->error()));
    QVERIFY2(server_->Listen(0), qPrintable(server_->error()));
  }
  bool Connect(quint16 port) {
    WriteNumber(doc_->record, *FindField("TelnetPort"), port);
    host_->SetDialogRunner([](HostIpForm& form, const std::string& entry) {
      form.Open(entry);
      form.set_use_tls(true);
      return form.Confirm({"127", "0", "0", "1"}, true);
    });
    if (!host_->ConnectToHost(*doc_)) return false;
    static_cast<void>(QTest::qWaitFor([this] { return !host_->connecting(); }, 20000));
    return host_->connected();
  }

  std::unique_ptr<QTemporaryDir> dir_;
  std::unique_ptr<demo_host::DemoHostServer> server_;
  std::unique_ptr<Document> doc_;
  std::unique_ptr<HostScreenWidget> screen_;
  std::unique_ptr<HostConnectionQt> host_;
  QStringList failures_;
  QStringList errors_;
  struct Question {
    std::string host;
    CertificateFacts facts;
    CertificateVerdict verdict;
  };
  std::vector<Question> questions_;
  Answer answer_ = Answer::kCancel;
};

}  // namespace veltrix

QTEST_MAIN(veltrix::TlsTest)
#include "tls_test.moc"
