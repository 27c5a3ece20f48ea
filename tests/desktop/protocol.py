"""What the X server sends to a program, recorded by the server itself."""
import threading

from Xlib import display
from Xlib.ext import record, res

KEYS = {2: "KeyPress", 3: "KeyRelease"}
GENERIC, XI_KEYS = 35, {2: "XI KeyPress", 3: "XI KeyRelease", 13: "raw KeyPress", 14: "raw KeyRelease"}


class KeyEvents:
    """Records every event about a key, of the core protocol or of the input extension, that the server delivers to any
    connection of that process."""

    def __init__(self, name, pid):
        self._control, self._data = display.Display(name), display.Display(name)
        self.names = []
        self._context = self._control.record_create_context(0, self._clients(pid), [{
            "core_requests": (0, 0), "core_replies": (0, 0), "ext_requests": (0, 0, 0, 0), "ext_replies": (0, 0, 0, 0),
            "delivered_events": (2, GENERIC), "device_events": (0, 0), "errors": (0, 0), "client_started": False,
            "client_died": False}])
        self._control.sync()
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()

    def _run(self):
        self._data.record_enable_context(self._context, self._received)

    def _clients(self, pid):
        every = 0
        answer = self._control.res_query_client_ids([{"client": every, "mask": res.LocalClientPIDMask}])
        found = [each.spec.client for each in answer.ids if list(each.value) == [pid]]
        if len(found) < 2:
            raise AssertionError(f"process {pid} has {len(found)} connections, not those of its toolkit and its own")
        return found

    def _received(self, reply):
        if reply.category != record.FromServer:
            return
        for at in range(0, len(reply.data), 32):
            event = reply.data[at:at + 32]
            kind = event[0] & 0x7F
            name = KEYS.get(kind) or kind == GENERIC and XI_KEYS.get(int.from_bytes(event[8:10], "little"))
            if name:
                self.names.append(name)

    def close(self):
        self._control.record_disable_context(self._context)
        self._control.sync()
        self._thread.join(5)
        self._control.close()
        self._data.close()
