# An FTP server on 127.0.0.1 for the tests of the program update: one account over a folder.
# Usage: Server_Ftp.py HOME USER PASSWORD [--pomalu]; prints the port it listens on.
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler, ThrottledDTPHandler
from pyftpdlib.servers import FTPServer

home, user, password = sys.argv[1:4]
authorizer = DummyAuthorizer()
authorizer.add_user(user, password, home, perm="elr")
handler = FTPHandler
handler.authorizer = authorizer
if "--pomalu" in sys.argv:
    dtp = ThrottledDTPHandler
    dtp.read_limit = 20000
    dtp.write_limit = 20000
    handler.dtp_handler = dtp
server = FTPServer(("127.0.0.1", 0), handler)
print(server.address[1], flush=True)
server.serve_forever()
