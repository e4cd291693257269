"""An address book on a server (radicale) on loopback, for the tests of clients."""

import json
import os
import socket
import subprocess
import sys
import time
import urllib.error
import urllib.request


class Server:
    def __init__(self, home):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        folder = home + "/server"
        book = folder + "/collection-root/user/book"
        os.makedirs(book)
        with open(book + "/.Radicale.props", "w") as props:
            json.dump({"tag": "VADDRESSBOOK"}, props)
        with open(home + "/radicale.conf", "w") as config:
            config.write("[server]\nhosts = 127.0.0.1:%d\n[auth]\ntype = none\n[storage]\nfilesystem_folder = %s\n"
                         "[logging]\nlevel = error\n" % (port, folder))
        self.url = "http://127.0.0.1:%d/user/book/" % port
        self.home = home
        self.process = None
        self.start()

    def start(self):
        home = self.home
        self.process = subprocess.Popen(["/usr/bin/radicale", "-C", home + "/radicale.conf"],
                                        stderr=open(home + "/radicale.log", "w"))
        until = time.time() + 60
        while True:
            try:
                urllib.request.urlopen(self.url, timeout=5)
                return
            except urllib.error.HTTPError:
                return  # it answers
            except OSError:
                if time.time() > until or self.process.poll() is not None:
                    sys.exit("no server: " + open(home + "/radicale.log").read())
                time.sleep(0.05)

    def stop(self):
        self.process.terminate()
        self.process.wait()
