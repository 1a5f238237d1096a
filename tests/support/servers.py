"""Servers for tests, on a loopback port that the system chooses and that is printed as "port N".

  servers.py smtp FOLDER [options]   mails land in FOLDER/1, FOLDER/2, ... as they came ("raw") and as Python reads them:
                                     "readers" of the envelope, "subject", "from", "text", and the attached files
  servers.py ftp FOLDER [options]    FOLDER is what is served
  servers.py bad KIND [FOLDER]       a server that misbehaves in one way, see class Bad

Where a module is missing the program says "missing NAME" and ends.
"""

import argparse
import ctypes
import email
import email.policy
import os
import signal
import socket
import ssl
import sys
import threading
import time

parser = argparse.ArgumentParser()
parser.add_argument("what", choices=["smtp", "ftp", "bad"])
parser.add_argument("place")
parser.add_argument("folder", nargs="?", default=".")
parser.add_argument("--tls", choices=["start", "first"])
parser.add_argument("--cert")
parser.add_argument("--key")
parser.add_argument("--user", default="coach")
parser.add_argument("--password", default="putt & chip")
parser.add_argument("--login", action="store_true", help="mail goes only to who has logged in")
parser.add_argument("--refuse", default="", help="a reader who is refused")
parser.add_argument("--most", type=int, default=0, help="bytes of a message")
parser.add_argument("--without", default="", help="FTP commands that the server does not know, comma between")
parser.add_argument("--no-replace", action="store_true", help="no rename over a file")
arguments = parser.parse_args()

# The server ends with the test, however that ends.
ctypes.CDLL(None).prctl(1, signal.SIGTERM)


def announce(port):
    print("port", port, flush=True)
    os.dup2(os.open(os.devnull, os.O_WRONLY), 2)  # nobody reads it any more


def missing(error):
    print("missing", error.name, flush=True)
    sys.exit(3)


def smtp():
    try:
        from aiosmtpd.controller import Controller
        from aiosmtpd.smtp import SMTP, AuthResult
    except ImportError as error:
        missing(error)
    context = None
    if arguments.tls:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(arguments.cert, arguments.key)

    class Handler:
        count = 0

        async def handle_RCPT(self, server, session, envelope, address, options):
            if address == arguments.refuse:
                return "550 5.1.1 No such user here"
            envelope.rcpt_tos.append(address)
            return "250 OK"

        async def handle_DATA(self, server, session, envelope):
            Handler.count += 1
            folder = os.path.join(arguments.place, str(Handler.count))
            os.makedirs(os.path.join(folder, "files"))

            def keep(name, content):
                with open(os.path.join(folder, name), "wb") as file:
                    file.write(content if isinstance(content, bytes) else content.encode())

            mail = email.message_from_bytes(envelope.original_content, policy=email.policy.default)
            keep("raw", envelope.original_content)
            keep("readers", ",".join(envelope.rcpt_tos))
            keep("subject", mail["subject"])
            keep("from", mail["from"])
            keep("text", mail.get_body().get_content())
            for part in mail.iter_attachments():
                keep(os.path.join("files", os.path.basename(part.get_filename())), part.get_content())
            return "250 OK"

    def check(server, session, envelope, mechanism, data):
        good = data.login.decode() == arguments.user and data.password.decode() == arguments.password
        return AuthResult(success=good, handled=False) if good else AuthResult(
            success=False, handled=False,
            message="535 5.7.8 Wrong password " + data.password.decode())

    settings = dict(authenticator=check, auth_require_tls=False, auth_required=arguments.login,
                    data_size_limit=arguments.most or None, enable_SMTPUTF8=False)
    if arguments.tls == "start":
        settings.update(tls_context=context, require_starttls=True)

    class Choosing(Controller):
        def factory(self):
            return SMTP(self.handler, **settings)

        def _trigger_server(self):
            self.port = self.server.sockets[0].getsockname()[1]
            super()._trigger_server()

    server = Choosing(Handler(), hostname="127.0.0.1", port=0,
                      ssl_context=context if arguments.tls == "first" else None)
    server.start()
    announce(server.port)
    while True:
        time.sleep(3600)


def ftp():
    try:
        from pyftpdlib.authorizers import DummyAuthorizer
        from pyftpdlib.handlers import FTPHandler, TLS_DTPHandler, TLS_FTPHandler
        from pyftpdlib.servers import FTPServer
    except ImportError as error:
        missing(error)
    base = TLS_FTPHandler if arguments.tls else FTPHandler

    class Data(TLS_DTPHandler):
        def readable(self):
            # A client may greet on the data connection before it says what goes over it.
            return self._ssl_accepting or super().readable()

    class Handler(base):
        proto_cmds = {name: command for name, command in base.proto_cmds.items()
                      if name not in arguments.without.split(",")}

        def __init__(self, connection, server, ioloop=None):
            super().__init__(connection, server, ioloop)
            if arguments.tls == "first":
                self.secure_connection(self.ssl_context)

        def handle(self):
            # With encryption from the first byte the greeting waits for it.
            if arguments.tls != "first":
                super().handle()

        def handle_ssl_established(self):
            if arguments.tls == "first":
                super().handle()

        def ftp_RNTO(self, path):
            if arguments.no_replace and os.path.exists(path):
                self._rnfr = None
                self.respond("550 Cannot create a file when that file already exists.")
                return None
            return super().ftp_RNTO(path)

    authorizer = DummyAuthorizer()
    authorizer.add_user(arguments.user, arguments.password, arguments.place, perm="elradfmwMT")
    Handler.authorizer = authorizer
    Handler.auth_failed_timeout = 0
    if arguments.tls:
        Handler.dtp_handler = Data
        Handler.certfile = arguments.cert
        Handler.keyfile = arguments.key
        Handler.tls_control_required = True
        Handler.tls_data_required = True
    import logging
    logging.basicConfig(level=logging.CRITICAL)
    server = FTPServer(("127.0.0.1", 0), Handler)
    announce(server.socket.getsockname()[1])
    server.serve_forever()


class Bad(threading.Thread):
    """One connection to a server that misbehaves.

    mute        accepts, and never says a word
    hang        lets in, and answers nothing more
    hangdata    takes a command, opens the data connection, and is silent there
    cut         hangs up in the middle of a file, or of an upload
    full        takes a part of an upload, and is full
    lists       says of its folder what stands in FOLDER/mlsd, FOLDER/list or FOLDER/nlst; what is not there it does
                not know
    busy        hangs up at once
    mailcut     hangs up in the middle of a message
    mailhang    is silent when the message has come
    quithang    takes the message, and is silent when it is told goodbye
    slow        calls back and reads an upload in small bites, for longer than a second
    nobodyin    takes no login before encryption, and has none
    sink        takes each message as fast as it comes, whatever it says, and keeps the last one as FOLDER/raw
    """

    def __init__(self, connection):
        super().__init__(daemon=True)
        self.connection = connection
        self.lines = connection.makefile("rb")
        self.data = None
        self.active = 0

    def say(self, text):
        self.connection.sendall(text.encode() + b"\r\n")

    def run(self):
        try:
            self.serve()
        except OSError:
            pass
        finally:
            self.connection.close()

    def serve(self):
        kind = arguments.place
        if kind == "mute":
            self.lines.read()
            return
        if kind == "busy":
            self.say("421 Too many users, sorry")
            return
        self.say("220 ready")
        while True:
            line = self.lines.readline().decode("utf-8", "replace").rstrip("\r\n")
            if not line:
                return
            verb, _, rest = line.partition(" ")
            answer = getattr(self, "do_" + verb.upper(), None)
            if kind == "hang" and verb.upper() not in ("USER", "PASS", "EHLO"):
                self.lines.read()
                return
            if not answer:
                self.say("502 not known")
            elif answer(rest) is False:
                return

    def listener(self):
        self.passive = socket.create_server(("127.0.0.1", 0))
        return self.passive.getsockname()[1]

    def do_USER(self, rest):
        self.say("331 password")

    def do_PASS(self, rest):
        self.say("230 in")

    def do_PWD(self, rest):
        self.say('257 "/"')

    def do_TYPE(self, rest):
        self.say("200 fine")

    def do_CWD(self, rest):
        self.say("250 fine")

    def do_SIZE(self, rest):
        self.say("213 1000000")

    def do_DELE(self, rest):
        self.say("250 gone")

    def do_QUIT(self, rest):
        if arguments.place == "quithang":
            self.lines.read()
        self.say("221 bye")
        return False

    def do_EPRT(self, rest):
        self.active = int(rest.split("|")[3])
        self.say("200 fine")

    def do_RNFR(self, rest):
        self.say("350 and then")

    def do_RNTO(self, rest):
        self.say("250 renamed")

    def do_EPSV(self, rest):
        self.say("229 here (|||%d|)" % self.listener())

    def transfer(self):
        self.say("150 comes")
        if self.active:
            data = socket.socket()
            data.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 4096)
            data.connect(("127.0.0.1", self.active))
            return data
        return self.passive.accept()[0]

    def do_RETR(self, rest):
        data = self.transfer()
        if arguments.place == "hangdata":
            self.lines.read()
            return False
        data.sendall(b"x" * 500000)
        if arguments.place == "cut":
            # Everything at once, as when a cable is pulled on the other side.
            data.close()
            return False
        data.close()
        self.say("226 done")

    def do_STOR(self, rest):
        data = self.transfer()
        if arguments.place == "hangdata":
            self.lines.read()
            return False
        data.recv(1000)
        if arguments.place == "full":
            data.close()
            self.say("552 Disk quota exceeded")
            return None
        if arguments.place == "cut":
            data.close()
            return False
        bites = 15 if arguments.place == "slow" else 0
        while data.recv(20000 if bites > 0 else 65536):
            if bites > 0:
                bites -= 1
                time.sleep(0.1)
        data.close()
        self.say("226 done")

    def listing(self, name):
        path = os.path.join(arguments.folder, name)
        if not os.path.exists(path):
            self.say("502 not known")
            return
        data = self.transfer()
        with open(path, "rb") as text:
            data.sendall(text.read())
        data.close()
        self.say("226 done")

    def do_MLSD(self, rest):
        self.listing("mlsd")

    def do_LIST(self, rest):
        self.listing("list")

    def do_NLST(self, rest):
        self.listing("nlst")

    def do_EHLO(self, rest):
        self.say("250 fine")

    def do_MAIL(self, rest):
        self.say("530 Must issue a STARTTLS command first" if arguments.place == "nobodyin" else "250 fine")

    def do_RCPT(self, rest):
        self.say("250 fine")

    def do_DATA(self, rest):
        self.say("354 go on")
        if arguments.place == "mailcut":
            self.lines.read(20000)
            return False
        if arguments.place == "sink":
            with open(os.path.join(arguments.folder, "raw"), "wb") as raw:
                for line in iter(self.lines.readline, b".\r\n"):
                    raw.write(line)
            self.say("250 taken")
            return None
        while self.lines.readline() not in (b".\r\n", b""):
            pass
        if arguments.place == "quithang":
            self.say("250 taken")
            return None
        self.lines.read()
        return False


def bad():
    server = socket.create_server(("127.0.0.1", 0))
    announce(server.getsockname()[1])
    while True:
        Bad(server.accept()[0]).start()


{"smtp": smtp, "ftp": ftp, "bad": bad}[arguments.what]()
