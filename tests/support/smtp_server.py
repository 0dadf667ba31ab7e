"""A mail server on loopback that keeps what it is sent: smtp_server.py FOLDER MANNER USER PASSWORD

Prints its port, then serves until standard input ends. Each mail becomes a folder
FOLDER/1, FOLDER/2, ... with the files raw, from, to, user, body, header.NAME for each header
(decoded), and for attachments attachment.N.name and attachment.N. The file "complete" comes
last. With a user it takes mail from nobody else. In the manner --silent it never says a
word; in --hang-up it hangs up in the middle, once it knows who sends.
"""
import asyncio
import email
import email.policy
import logging
import pathlib
import random
import sys
import warnings

from aiosmtpd.smtp import SMTP, AuthResult

FOLDER = pathlib.Path(sys.argv[1])
MANNER, USER, PASSWORD = sys.argv[2:]


class Keeper:
    count = 0

    async def handle_RCPT(self, server, session, envelope, address, options):
        if MANNER == "--hang-up":
            server.transport.abort()
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        self.count += 1
        mail = FOLDER / str(self.count)
        mail.mkdir()
        message = email.message_from_bytes(envelope.original_content, policy=email.policy.default)
        body = message.get_body(("plain",))
        texts = {"from": envelope.mail_from, "to": "\n".join(envelope.rcpt_tos),
                 "user": session.auth_data.login.decode() if session.authenticated else "",
                 "body": body.get_content().replace("\r\n", "\n") if body else ""}
        texts.update((f"header.{name}", str(value)) for name, value in message.items())
        for number, part in enumerate(message.iter_attachments(), 1):
            texts[f"attachment.{number}.name"] = part.get_filename() or ""
            (mail / f"attachment.{number}").write_bytes(part.get_payload(decode=True))
        for name, text in texts.items():
            (mail / name).write_text(text)
        (mail / "raw").write_bytes(envelope.original_content)
        (mail / "complete").touch()
        return "250 OK"


def check(server, session, envelope, mechanism, data):
    known = (USER.encode(), PASSWORD.encode())
    return AuthResult(success=(data.login, data.password) == known, handled=False, auth_data=data)


async def listen(loop, protocol):
    # The setting that holds the port of the mail server is a 16-bit number with a sign.
    while True:
        try:
            return await loop.create_server(protocol, "127.0.0.1", random.randint(20000, 32000))
        except OSError:
            pass


async def serve():
    loop = asyncio.get_running_loop()
    rules = {"authenticator": check, "auth_required": True, "auth_require_tls": False} if USER else {}
    keeper = Keeper()
    speaking = asyncio.Protocol if MANNER == "--silent" else lambda: SMTP(keeper, loop=loop, **rules)
    server = await listen(loop, speaking)
    print(server.sockets[0].getsockname()[1], flush=True)
    await loop.run_in_executor(None, sys.stdin.read)
    server.close()


# It warns that passwords go over the wire unprotected, which is what is wanted here.
warnings.simplefilter("ignore")
logging.disable(logging.WARNING)
asyncio.run(serve())
