/* Loaded in front of a program, this lets the n-th call that touches the program folder go wrong.

   GUASTI_CARTELLA  the folder, as the program is given it
   GUASTI           "N:WHAT": what happens at call N (from 1 on)
                      a number   the call fails with that errno
                      t          a write writes half and the next one finds no room
                      k          the program is killed, a write half done
                      c          the power goes: what was not synced is gone, names and contents
                      s:SIG:US   signal SIG comes US microseconds later
   GUASTI_SISTEMA   "chiusa": nothing can be put into the folder; "vecchio": no renameat2
   GUASTI_TRACCIA   a file that takes the names of the calls, a line each

   With "c" nothing waits for the disk, and the end of the program is the end of the power too. */
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

enum { FILE_APERTI = 256, NOMI = 64 };

static const char *cartella, *cosa = "", *sistema = "";
static size_t lunga;
static long quando = -1, chiamata;
static int traccia = -1, senza_posto = -1;
static char tenuto[FILE_APERTI], sporco[FILE_APERTI];
static struct { char da[4096], a[4096], vecchio[4096]; } mossi[NOMI];
static int quanti_mossi;

#define VERO(nome) ((__typeof__(&nome))vero(#nome))
static void *vero(const char *nome) { return dlsym(RTLD_NEXT, nome); }

__attribute__((constructor)) static void inizio(void) {
  const char *guasti = getenv("GUASTI"), *file = getenv("GUASTI_TRACCIA");
  if (file) traccia = VERO(open)(file, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (getenv("GUASTI_SISTEMA")) sistema = getenv("GUASTI_SISTEMA");
  if (guasti) {
    char *fine;
    quando = strtol(guasti, &fine, 10);
    cosa = fine + 1;
  }
  cartella = getenv("GUASTI_CARTELLA");
  lunga = cartella ? strlen(cartella) : 0;
}

static int nostro(const char *percorso) { return cartella && strncmp(percorso, cartella, lunga) == 0; }
static int nostra(int fd) { return fd >= 0 && fd < FILE_APERTI && tenuto[fd]; }

/* What is not on the disk does not come back: names first, the last one first. */
static void corrente_via(void) {
  while (quanti_mossi > 0) {
    --quanti_mossi;
    const char *da = mossi[quanti_mossi].da, *a = mossi[quanti_mossi].a, *vecchio = mossi[quanti_mossi].vecchio;
    VERO(rename)(a, da);
    if (*vecchio) VERO(rename)(vecchio, a);
  }
  for (int fd = 0; fd < FILE_APERTI; ++fd)
    if (sporco[fd]) (void)!VERO(ftruncate)(fd, 0);
}

__attribute__((destructor)) static void fine(void) {
  if (*cosa == 'c') corrente_via();
}

static void segnale_fra(const char *segnale_e_quanto) {
  char *resto;
  struct sigevent evento = {.sigev_notify = SIGEV_SIGNAL};
  evento.sigev_signo = (int)strtol(segnale_e_quanto, &resto, 10);
  const struct itimerspec fra = {.it_value = {.tv_nsec = 1 + 1000 * strtol(resto + 1, NULL, 10)}};
  timer_t orologio;
  if (timer_create(CLOCK_MONOTONIC, &evento, &orologio) == 0) timer_settime(orologio, 0, &fra, NULL);
}

/* The errno that this call fails with; 0 when it goes on. `meta` does half of what was asked. */
static int guasto(const char *nome, void (*meta)(int, const void *, size_t), int fd, const void *dati, size_t n) {
  const int prima = errno;
  /* A thread that closes what nobody needs any more comes at no fixed place among the calls. */
  if (gettid() != getpid()) return 0;
  if (traccia >= 0) dprintf(traccia, "%s\n", nome);
  if (++chiamata != quando) {
    errno = prima;
    return 0;
  }
  if (*cosa == 's') segnale_fra(cosa + 2);
  if (*cosa == 't' && meta) senza_posto = fd;
  if ((*cosa == 'k' || *cosa == 'c') && meta) meta(fd, dati, n);
  if (*cosa == 'c') corrente_via();
  if (*cosa == 'k' || *cosa == 'c') kill(getpid(), SIGKILL);
  errno = prima;
  return atoi(cosa);
}

#define FALLISCE(nome)                                 \
  do {                                                 \
    const int codice = guasto(nome, NULL, -1, NULL, 0); \
    if (codice) return errno = codice, -1;             \
  } while (0)

int open(const char *percorso, int modo, ...) {
  va_list altri;
  va_start(altri, modo);
  const mode_t permessi = modo & O_CREAT ? va_arg(altri, mode_t) : 0;
  va_end(altri);
  if (!nostro(percorso)) return VERO(open)(percorso, modo, permessi);
  FALLISCE("open");
  if (strcmp(sistema, "chiusa") == 0 && modo & O_EXCL) return errno = EACCES, -1;
  const int fd = VERO(open)(percorso, modo, permessi);
  if (fd >= 0 && fd < FILE_APERTI) tenuto[fd] = 1, sporco[fd] = 0;
  return fd;
}

int close(int fd) {
  if (!nostra(fd)) return VERO(close)(fd);
  tenuto[fd] = 0;
  /* What was written and not synced stays open under another number, for the power to go. */
  if (sporco[fd]) {
    const int copia = dup(fd);
    sporco[fd] = 0;
    if (copia >= 0 && copia < FILE_APERTI) sporco[copia] = 1;
  }
  const int codice = guasto("close", NULL, -1, NULL, 0);
  VERO(close)(fd);
  return codice ? (errno = codice, -1) : 0;
}

ssize_t read(int fd, void *dati, size_t n) {
  if (nostra(fd)) FALLISCE("read");
  return VERO(read)(fd, dati, n);
}

static void meta(int fd, const void *dati, size_t n) { (void)!VERO(write)(fd, dati, n / 2); }

ssize_t write(int fd, const void *dati, size_t n) {
  if (!nostra(fd)) return VERO(write)(fd, dati, n);
  if (senza_posto == fd) return senza_posto = -1, errno = ENOSPC, -1;
  sporco[fd] = 1;
  const int codice = guasto("write", meta, fd, dati, n);
  if (codice) return errno = codice, -1;
  return VERO(write)(fd, dati, senza_posto == fd ? n / 2 : n);
}

int ftruncate(int fd, off_t n) {
  if (nostra(fd)) FALLISCE("ftruncate");
  return VERO(ftruncate)(fd, n);
}

int fsync(int fd) {
  if (!nostra(fd)) return VERO(fsync)(fd);
  FALLISCE("fsync");
  struct stat stato;
  if (fstat(fd, &stato) == 0 && S_ISDIR(stato.st_mode)) {
    for (; quanti_mossi > 0; --quanti_mossi) VERO(unlink)(mossi[quanti_mossi - 1].vecchio);
  }
  sporco[fd] = 0;
  return *cosa == 's' ? VERO(fsync)(fd) : 0;
}

int syncfs(int fd) {
  if (!nostra(fd)) return VERO(syncfs)(fd);
  FALLISCE("syncfs");
  memset(sporco, 0, sizeof sporco);
  return *cosa == 's' ? VERO(syncfs)(fd) : 0;
}

/* Remembers how a name is given back when the power goes before the folder is synced. */
static void mosso(const char *da, const char *a) {
  if (*cosa != 'c' || quanti_mossi == NOMI) return;
  snprintf(mossi[quanti_mossi].da, sizeof mossi->da, "%s", da);
  snprintf(mossi[quanti_mossi].a, sizeof mossi->a, "%s", a);
  snprintf(mossi[quanti_mossi].vecchio, sizeof mossi->vecchio, "%s/.guasti.%d", cartella, quanti_mossi);
  if (VERO(link)(a, mossi[quanti_mossi].vecchio) != 0) *mossi[quanti_mossi].vecchio = '\0';
  ++quanti_mossi;
}

int rename(const char *da, const char *a) {
  if (!nostro(a)) return VERO(rename)(da, a);
  FALLISCE("rename");
  mosso(da, a);
  return VERO(rename)(da, a);
}

int renameat2(int da_qui, const char *da, int a_qui, const char *a, unsigned modo) {
  if (!nostro(a)) return VERO(renameat2)(da_qui, da, a_qui, a, modo);
  FALLISCE("renameat2");
  if (strcmp(sistema, "vecchio") == 0 && modo != 0) return errno = EINVAL, -1;
  if (!(modo & RENAME_NOREPLACE) || access(a, F_OK) != 0) mosso(da, a);
  return VERO(renameat2)(da_qui, da, a_qui, a, modo);
}

int unlink(const char *percorso) {
  if (nostro(percorso)) {
    FALLISCE("unlink");
    if (*cosa == 'c' && quanti_mossi < NOMI) {
      snprintf(mossi[quanti_mossi].da, sizeof mossi->da, "%s", percorso);
      snprintf(mossi[quanti_mossi].a, sizeof mossi->a, "%s/.guasti.%d", cartella, quanti_mossi);
      memcpy(mossi[quanti_mossi].vecchio, mossi[quanti_mossi].a, sizeof mossi->a);
      if (VERO(link)(percorso, mossi[quanti_mossi].a) == 0) ++quanti_mossi;
    }
  }
  return VERO(unlink)(percorso);
}

int mkdir(const char *percorso, mode_t permessi) {
  if (nostro(percorso)) FALLISCE("mkdir");
  return VERO(mkdir)(percorso, permessi);
}

int flock(int fd, int come) {
  if (nostra(fd)) FALLISCE("flock");
  return VERO(flock)(fd, come);
}

int faccessat(int qui, const char *percorso, int come, int modo) {
  if (nostro(percorso)) {
    FALLISCE("faccessat");
    if (strcmp(sistema, "chiusa") == 0) return errno = EACCES, -1;
  }
  return VERO(faccessat)(qui, percorso, come, modo);
}
