// The program runs once a user: a second start hands over to the first and ends by itself, while the
// first goes on. Both are the real program, offscreen, with a home of their own so that the user's
// settings stay untouched.
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class Test_Jedina_Instance final : public QObject {
    Q_OBJECT

private slots:
    void Druhe_Spusteni_Preda_Prvnimu() {
        QTemporaryDir domov;
        QVERIFY(domov.isValid());
        // A user name of its own keeps the test apart from a Tombi that the user may have open.
        const QString uzivatel = u"tombi-test-"_qs + QString::number(QCoreApplication::applicationPid());
        const QString server = u"Tombi-"_qs + uzivatel;
        QProcessEnvironment prostredi = QProcessEnvironment::systemEnvironment();
        prostredi.insert(u"USER"_qs, uzivatel);
        prostredi.insert(u"HOME"_qs, domov.path());
        prostredi.insert(u"XDG_CONFIG_HOME"_qs, domov.filePath(u"config"_qs));
        prostredi.insert(u"XDG_DATA_HOME"_qs, domov.filePath(u"data"_qs));
        prostredi.insert(u"XDG_CACHE_HOME"_qs, domov.filePath(u"cache"_qs));
        prostredi.insert(u"QT_QPA_PLATFORM"_qs, u"offscreen"_qs);
        prostredi.remove(u"TOMBI_MERENI_STARTU"_qs);

        QProcess prvni;
        prvni.setProcessEnvironment(prostredi);
        prvni.start(QStringLiteral(TOMBI_PROGRAM), {});
        QVERIFY(prvni.waitForStarted());
        const auto posloucha = [&server] {
            QLocalSocket spojeni;
            spojeni.connectToServer(server);
            const bool spojeno = spojeni.waitForConnected(200);
            spojeni.abort();
            return spojeno;
        };
        QTRY_VERIFY_WITH_TIMEOUT(posloucha(), 20000);

        QProcess druhy;
        druhy.setProcessEnvironment(prostredi);
        druhy.start(QStringLiteral(TOMBI_PROGRAM), {});
        QVERIFY(druhy.waitForFinished(20000));
        QCOMPARE(druhy.exitStatus(), QProcess::NormalExit);
        QCOMPARE(druhy.exitCode(), 0);
        QTest::qWait(300); // the first takes the request
        QCOMPARE(prvni.state(), QProcess::Running);

        prvni.kill();
        prvni.waitForFinished();
        QLocalServer::removeServer(server);
    }
};

QTEST_MAIN(Test_Jedina_Instance)
#include "Test_Jedina_Instance.moc"
