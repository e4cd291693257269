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
    def __init__(self, home, user="user", password=None):
        """Without a password everybody may do everything."""
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        folder = home + "/server"
        book = folder + "/collection-root/%s/book" % user
        os.makedirs(book)
        with open(book + "/.Radicale.props", "w") as props:
            json.dump({"tag": "VADDRESSBOOK"}, props)
        with open(home + "/radicale.conf", "w") as config:
            config.write("[server]\nhosts = 127.0.0.1:%d\n[storage]\nfilesystem_folder = %s\n"
                         "[logging]\nlevel = error\n[auth]\n" % (port, folder))
            if password is None:
                config.write("type = none\n")
            else:
                config.write("type = htpasswd\nhtpasswd_filename = %s/users\nhtpasswd_encryption = plain\n" % home)
                with open(home + "/users", "w") as users:
                    users.write("%s:%s\n" % (user, password))
        self.url = "http://127.0.0.1:%d/%s/book/" % (port, user)
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


def make_keyring(folder):
    """A stand-in of secret-tool: a program for PATH that keeps passwords under what it is asked for."""
    os.makedirs(folder)
    with open(folder + "/secret-tool", "w") as program:
        program.write("""#!/bin/sh
verb=$1
shift
[ "$verb" != store ] || [ "$1 $2" = "--label Linkhand" ] || exit 2
[ "$verb" != store ] || shift 2
place="%s/$(echo "$*" | sha256sum | cut -c 1-64).secret"
case $verb in
store) cat >"$place" ;;
lookup) cat "$place" ;;
*) exit 2 ;;
esac
""" % folder)
    os.chmod(folder + "/secret-tool", 0o755)
